#!/usr/bin/env python3
"""Makes the expected export files of the demo catalogue, for the tests to compare the program's files with.

It works from the rules alone and shares nothing with the program:

- The catalogue export has a line per course, in table order. Its holders are those of the first three link
  rows of the course, by place, in any role.
- The semester statistics count a course once for every direction it is linked to; with a direction filter
  once if it is linked to that one. Every type but "obvezni" is elective. Diplomski has 4 semesters, any other
  level 6. The totals follow the semesters.

    tests/expected/make_exports.py [FOLDER]    writes the files to FOLDER, by default to its own
"""

import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
DEMO = HERE.parent.parent / "demo"

STATISTICS = [
    ("Preddiplomski", "LOR", "Svi", "Svi"),
    ("Diplomski", "LOR", "OP", "2"),
]


def table(name):
    lines = (DEMO / f"db_{name}.csv").read_bytes().decode("cp1250").split("\r\n")
    return [line.split(";") for line in lines[1:] if line.strip(" ")]


def write(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp1250"))


LECTURERS = table("nastavnici")
STUDIES = table("studij")
DIRECTIONS = table("smjer")
COURSES = table("kolegij")
IN_DIRECTIONS = table("kolegij_smjer")
HOLDERS = table("kolegij_nastavnik")


def field_of(rows, identifier, column):
    return next((row[column] for row in rows if int(row[0]) == int(identifier)), "")


def catalogue():
    yield "ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;Semestar;P_D"
    for identifier, title, p, s, v, ects, kind, semester, study in COURSES:
        first_three = [row for row in HOLDERS if int(row[0]) == int(identifier)][:3]
        names = [field_of(LECTURERS, row[1], 1) for row in sorted(first_three, key=lambda row: int(row[3]))]
        names += [""] * (3 - len(names))
        codes = [field_of(DIRECTIONS, row[1], 2).strip(" ") for row in IN_DIRECTIONS
                 if int(row[0]) == int(identifier)]
        yield ";".join([identifier, *names, title, p, s, v, ects, ", ".join(code for code in codes if code),
                        kind, field_of(STUDIES, study, 2), semester, field_of(STUDIES, study, 3)])


def weight(course, direction):
    linked = [int(row[1]) for row in IN_DIRECTIONS if int(row[0]) == course]
    return len(linked) if direction is None else int(direction in linked)


def statistics(level, program, direction, semester):
    study = next(int(row[0]) for row in STUDIES if row[3] == level and row[2] == program)
    direction_id = None if direction == "Svi" else next(
        int(row[0]) for row in DIRECTIONS if int(row[3]) == study and row[2] == direction)
    shown = range(1, 5 if level == "Diplomski" else 7)

    sums = {(number, kind): [0] * 5 for number in shown for kind in ("Obvezni", "Izborni")}
    for row in COURSES:
        number = int(row[7])
        if int(row[8]) != study or number not in shown or semester not in ("Svi", str(number)):
            continue
        kind = "Obvezni" if row[6].strip(" ").upper() == "OBVEZNI" else "Izborni"
        for place, value in enumerate([*map(int, row[2:6]), 1]):
            sums[number, kind][place] += weight(int(row[0]), direction_id) * value

    def total(kinds):
        return [sum(column) for column in zip(*(sums[key] for key in sums if key[1] in kinds))]

    yield from ("sep=;", f"Razina;{level}", f"Program;{program}", f"Smjer;{direction}",
                f"Semestar;{semester}", "", "Semestar;Tip;P;S;V;ECTS;Kolegija")
    rows = [(str(number), kind, sums[number, kind]) for number, kind in sums
            if semester in ("Svi", str(number))]
    rows += [("UKUPNO", kind, total([kind])) for kind in ("Obvezni", "Izborni")]
    rows.append(("TOTAL", "Sve", total(["Obvezni", "Izborni"])))
    for first, second, numbers in rows:
        yield ";".join([first, second, *map(str, numbers)])


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE
    write(folder / "kolegiji_export.csv", catalogue())
    for filters in STATISTICS:
        write(folder / f"statistika_{'_'.join(filters)}.csv", statistics(*filters))


if __name__ == "__main__":
    main()
