#!/usr/bin/env python3
"""Makes the expected files of the two teaching-load exports of the demo catalogue, with no filter set.

It works from the rules alone and shares nothing with the program:

- A lecturer's load is that of every course in a link row, once per link row and for any role. A
  department's load is that of its lecturers: the department that the lecturer's row names.
- Semesters outside 1 to 6 do not count. For a lecturer every type but "obvezni" is elective; for a department
  a course whose type is neither word does not count.
- Each has 16 lines: per semester the compulsory and the elective sums, then three totals, then an empty
  line. The names of the totals differ between the two files.

    tests/expected/make_load_exports.py [FOLDER]    writes the files to FOLDER, by default to its own
"""

import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
DEMO = HERE.parent.parent / "demo"

COLUMNS = "Semestar;Tip;P;S;V;ECTS;Broj kolegija"


def table(name):
    lines = (DEMO / f"db_{name}.csv").read_bytes().decode("cp1250").split("\r\n")
    return [line.split(";") for line in lines[1:] if line.strip(" ")]


DEPARTMENTS = table("zavod")
LECTURERS = table("nastavnici")
COURSES = table("kolegij")
LINKS = table("kolegij_nastavnik")


def taught_by(lecturer):
    for link in LINKS:
        if int(link[1]) == int(lecturer[0]):
            yield from (course for course in COURSES if int(course[0]) == int(link[0]))


def block(name, courses, kind_of, totals):
    taught = [(int(course[7]), kind_of(course[6].strip(" ").upper()), [*map(int, course[2:6]), 1])
              for course in courses]
    taught = [entry for entry in taught if 1 <= entry[0] <= 6 and entry[1]]

    def line(first, second, passes):
        chosen = [numbers for semester, kind, numbers in taught if passes(semester, kind)]
        return ";".join([name, first, second, *(str(sum(column)) for column in zip([0] * 5, *chosen))])

    for semester in range(1, 7):
        for kind in ("Obvezni", "Izborni"):
            yield line(str(semester), kind, lambda s, k: s == semester and k == kind)
    type_total, grand_total, all_types = totals
    for kind in ("Obvezni", "Izborni"):
        yield line(type_total, kind, lambda _, k: k == kind)
    yield line(grand_total, all_types, lambda *_: True)
    yield ""


def lecturers():
    yield "Nastavnik;" + COLUMNS
    for lecturer in LECTURERS:
        yield from block(lecturer[1], taught_by(lecturer),
                         lambda kind: "Obvezni" if kind == "OBVEZNI" else "Izborni",
                         ("UKUPNO", "TOTAL", "Sve"))


def departments():
    yield "Zavod;" + COLUMNS
    for department in DEPARTMENTS:
        staff = [lecturer for lecturer in LECTURERS if int(lecturer[3]) == int(department[0])]
        yield from block(department[1], [course for lecturer in staff for course in taught_by(lecturer)],
                         {"OBVEZNI": "Obvezni", "IZBORNI": "Izborni"}.get,
                         ("Ukupno", "Ukupno", "Total"))


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE
    for name, lines in (("nastavnici", lecturers()), ("zavodi", departments())):
        content = "".join(line + "\r\n" for line in lines).encode("cp1250")
        (folder / f"statistika_svi_{name}.csv").write_bytes(content)


if __name__ == "__main__":
    main()
