#pragma once

#include "data/Windows1250.h"
#include "differential/RandomCatalogue.h"

#include <string>
#include <string_view>

// The texts that random catalogues and filters choose from.

inline constexpr int LargestID = 9;

inline constexpr std::string_view Names[] = {
    "Uvod u lov",    "Žičani alati",      "Ćudoredna šuma", "Đački rječnik",
    "Matematika 5",  "Šumarstvo, osnove", "Tijelo \"A\"",   "ljekovito bilje",
    "Njega džungle", "Österreich Łódź",   "Straße",         "obvezni dio",
};
inline constexpr std::string_view People[] = {
    "Anić Ana", "Šarić Žarko", "Đurić Ćiro", "Njegoš, Ljubo", "O'Brien \"Obi\"", "čović ČEDO", "Ljubić Džon",
};
inline constexpr std::string_view Codes[] = {"LOR", "BEV",   "LOR", "BEV",  "ŠUM",
                                             "A/B", "\"Q\"", "a,b", " OP ", ""};
inline constexpr std::string_view Titles[] = {"dr. sc.", "", "prof. dr. sc.", "  "};
inline constexpr std::string_view Levels[] = {"Preddiplomski", "Diplomski"};
inline constexpr std::string_view OddLevels[] = {"preddiplomski", "Diplomski ", "DIPLOMSKI", "",
                                                 "Poslijediplomski"};
inline constexpr std::string_view Types[] = {"obvezni", "izborni"};
inline constexpr std::string_view OddTypes[] = {"OBVEZNI",  " obvezni ", "Obavezni", "",
                                                "IZBORNI ", "izborni\t", "ÍZBORNI"};
inline constexpr std::string_view Roles[] = {"Nositelj", "Nositelj", "Suradnik"};
inline constexpr std::string_view OddRoles[] = {" NOSITELJ ", "nositelj", "", "Nositeljica"};
inline constexpr std::string_view NotNumbers[] = {"",      " ", "abc", "1e1", "0x1", "--1",
                                                  "1.2.3", ".", "+",   "1 2", "š",   "1\t"};
inline constexpr std::string_view LargeNumbers[] = {"2147483647",   "2147483648",           "-2147483648",
                                                    "-2147483649",  "99999999999",          "2147483647,5",
                                                    "2147483646,5", "-99999999999999999999"};
inline constexpr std::string_view OddTexts[] = {"\t",       "\x7f", "\xC2\x81", "\xC2\x98", "\xC2\xA0", "漢",
                                                "ß",        "€",    "a\nb",     "›",        "dž",       "Dž",
                                                "\xC2\xAD", "qwxy", "'",        ",",        "\"\""};

// The parts of words that test the alphabetical order.
inline constexpr std::string_view Syllables[] = {"l", "j", "n", "z", "d", "ž", "L", "J", "N", "Ž",
                                                 "a", "č", "ć", "đ", "Đ", "š", "s", " ", "1", "-"};

/// A random character of windows-1250 beyond ASCII, mostly a letter.
inline std::string ForeignLetter(Chance& chance)
{
    return FromWindows1250(std::string(1, static_cast<char>(chance.Between(0x80, 0xFF))));
}

inline std::string Word(Chance& chance)
{
    std::string word;
    for (int i = chance.Between(1, 4); i > 0; --i)
        word += chance.OneOf(Syllables);
    return word;
}
