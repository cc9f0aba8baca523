#!/usr/bin/env python3
"""Writes the expected reports of the ECTS calculator, ects_empty.csv and ects_full.csv.

Works the figures out on its own, in exact decimals; shares nothing with the program.
"""
from decimal import Decimal, ROUND_HALF_UP
from fractions import Fraction
from pathlib import Path


def number(text):
    try:
        return Fraction(Decimal(text.strip().replace(",", ".")))
    except ArithmeticError:
        return Fraction(0)


def shown(value, decimals):
    exact = Decimal(value.numerator) / Decimal(value.denominator)
    return str(exact.quantize(Decimal(1).scaleb(-decimals), ROUND_HALF_UP)).replace(".", ",")


def field(text):
    return '"' + text.replace('"', '""') + '"' if any(c in text for c in '";\r\n') else text


def report(course, lecturers, comment, contact, self_study, pages, estimates, by_estimate,
           written_pages, written_words, written_estimate, written_by_estimate, other, hours_per_point):
    norms = [Fraction(number(p) * n, 100) for p, n in zip(pages, (7, 10, 20, 30))]
    contact_total = shown(sum(map(number, contact)), 1)
    self_study_total = shown(sum(map(number, self_study)), 1)
    literature_total = shown(sum(map(number, estimates)) if by_estimate else sum(norms), 1)
    if number(written_pages) > 0:
        written_hours = number(written_pages) * Fraction(5, 2)
    else:
        written_hours = max(number(written_words), Fraction(0)) / 400
    written_time = shown(written_hours, 1)
    other_total = shown(sum(map(number, other)), 1)
    written = number(written_estimate if written_by_estimate else written_time)
    non_contact = number(literature_total) + number(self_study_total) + written + number(other_total)
    total = number(contact_total) + non_contact
    points = total / hours_per_point

    method = {True: "Vlastita procjena", False: "Normativ"}
    rows = [
        ["ECTS račun"],
        [],
        ["Naziv kolegija", course],
        ["Nositelj(i)", lecturers],
        ["Komentar", comment],
        [],
        ["Kontaktna nastava u semestru"],
        ["Vrsta nastave", "Kontaktni sati", "Samostalni sati"],
        *[list(row) for row in zip(("Predavanja", "Seminari", "Vježbe"), contact, self_study)],
        ["Ukupno", contact_total, self_study_total],
        [],
        ["Literatura"],
        ["Metoda", method[by_estimate]],
        ["Vrsta literature", "Broj stranica", "Izračun sati", "Procjena"],
        *[[label, page, shown(norm, 1), estimate] for label, page, norm, estimate in
          zip(("Jednostavni tekst", "Teži tekst", "Tekst + bilješke/rec", "Zahtjevni tekst"),
              pages, norms, estimates)],
        ["Ukupno", "", literature_total, ""],
        [],
        ["Pismeni zadatak"],
        ["Metoda", method[written_by_estimate]],
        ["Stavka", "Vrijednost"],
        ["Opseg u stranicama", written_pages],
        ["Opseg u riječima", written_words],
        ["Izračunato vrijeme", written_time],
        ["Vlastita procjena", written_estimate],
        [],
        ["Druge metode samostalnog učenja"],
        ["Aktivnost", "Sati"],
        *[list(row) for row in zip((
            "Pripreme za polaganje ispita", "Samostalno učenje koristeći fakultetske sadržaje",
            "Rješavanje matematičkog problema", "Pripreme za prezentaciju", "Rad u grupi", "E-učenje",
            "Savladavanje računalnih programa", "Pisanje računalnih programa", "Ostalo"), other)],
        ["Ukupno", other_total],
        [],
        ["Ukupno opterećenje studenta"],
        ["Stavka", "Vrijednost"],
        ["Kontaktna nastava", contact_total],
        ["Nekontaktna nastava", shown(non_contact, 1)],
        ["Ukupno", shown(total, 1)],
        ["ECTS bodovi", shown(points, 2)],
        ["Tjedni bodovi", shown(points * Fraction(3, 4), 2)],
    ]
    assert len(rows) == 50
    return "".join(";".join(map(field, row)) + "\r\n" for row in rows).encode("cp1250")


here = Path(__file__).parent
(here / "ects_empty.csv").write_bytes(report(
    "", "", "", [""] * 3, [""] * 3, [""] * 4, [""] * 4, False, "", "", "", False, [""] * 9, 30))
(here / "ects_full.csv").write_bytes(report(
    'Lovstvo; osnove "A"', "Anić Ana, Đurić Ćiro", "Prvi redak\r\nDrugi; žut",
    ["30", "15", "45"], ["15,0", " 7.5 ", "22,5"],
    ["45", "250", "", "abc"], ["", "10", "", "1,25"], False,
    "10", "", "12,5", True,
    ["10", "5,5", "", "2", "", "0,04", "", "3", "1"], 28))
