#pragma once

#include <string_view>

// The texts that the calculator's window and its report share.

inline constexpr std::string_view EctsCaption = "ECTS račun";

/// The groups of the calculator.
namespace EctsGroup
{
inline constexpr std::string_view Kontaktna = "Kontaktna nastava u semestru";
inline constexpr std::string_view Literatura = "Literatura";
inline constexpr std::string_view Pismeni = "Pismeni zadatak";
inline constexpr std::string_view Ostale = "Druge metode samostalnog učenja";
inline constexpr std::string_view UkupnoOpter = "Ukupno opterećenje studenta";
} // namespace EctsGroup

/// Column headings, and captions of rows outside the tables.
namespace EctsLabel
{
inline constexpr std::string_view NazivKolegija = "Naziv kolegija";
inline constexpr std::string_view Komentar = "Komentar";
inline constexpr std::string_view VrstaNastave = "Vrsta nastave";
inline constexpr std::string_view KontaktniSati = "Kontaktni sati";
inline constexpr std::string_view SamostalniSati = "Samostalni sati";
inline constexpr std::string_view VrstaLiterature = "Vrsta literature";
inline constexpr std::string_view BrojStranica = "Broj stranica";
inline constexpr std::string_view IzracunSati = "Izračun sati";
inline constexpr std::string_view Procjena = "Procjena";
inline constexpr std::string_view OpsegStranice = "Opseg u stranicama";
inline constexpr std::string_view OpsegRijeci = "Opseg u riječima";
inline constexpr std::string_view IzracunatoVrijeme = "Izračunato vrijeme";
inline constexpr std::string_view Normativ = "Normativ";
inline constexpr std::string_view VlastitaProcjena = "Vlastita procjena";
inline constexpr std::string_view Ukupno = "Ukupno";
} // namespace EctsLabel
