#include "differential/RandomCatalogue.h"
#include "differential/RandomTexts.h"

std::int32_t RandomID(Chance& chance)
{
    constexpr std::int32_t far[] = {0, -1, 2147483647, -2147483647 - 1};
    return chance.PerMille(30) ? chance.OneOf(far) : chance.Between(0, LargestID + 2);
}

CourseFilter RandomCourseFilter(Chance& chance)
{
    constexpr std::string_view searches[] = {"IZB", "obv",  " 5 ", "5",        "š",   "ŽIČ", "anić",
                                             "đur", "ČEDO", ", ",  "\"",       "lj",  " ",   "漢",
                                             "ß",   "\xFF", "a",   "nositelj", "xyz", " dio"};
    CourseFilter filter;
    if (chance.PerMille(400))
        filter.StudijID = RandomID(chance);
    if (chance.PerMille(300))
        filter.SmjerID = RandomID(chance);
    if (chance.PerMille(300))
        filter.Semestar = chance.Between(-1, 8);
    if (chance.PerMille(500))
        filter.Search = chance.OneOf(searches);
    else if (chance.PerMille(300))
        filter.Search = chance.PerMille(500) ? Word(chance) : ForeignLetter(chance);
    return filter;
}

LecturerFilter RandomLecturerFilter(Chance& chance)
{
    constexpr std::string_view programs[] = {"Svi", "Svi", "LOR", "BEV", "ŠUM", "", "lor"};
    constexpr std::string_view levels[] = {"Svi", "Svi", "Preddiplomski", "Diplomski", "", "diplomski"};
    return {std::string(chance.OneOf(levels)), std::string(chance.OneOf(programs))};
}

DepartmentFilter RandomDepartmentFilter(Chance& chance)
{
    constexpr std::string_view semesters[] = {"Svi", "Svi", "Zimski", "Ljetni", "1", "2",
                                              "3",   "6",   "7",      "",       "x"};
    return {RandomLecturerFilter(chance).Razina, std::string(chance.OneOf(semesters))};
}

std::string RandomRazina(Chance& chance)
{
    return std::string(chance.PerMille(50) ? chance.OneOf(OddLevels) : chance.OneOf(Levels));
}

CourseEntry RandomEntry(Chance& chance)
{
    constexpr std::string_view numbers[] = {"0", "1", "2", "30", " 3 ", "2,5", "+4", "1000000000"};
    CourseEntry entry;
    entry.Naziv = " " + std::string(chance.OneOf(Names));
    for (std::string CourseEntry::*const number :
         {&CourseEntry::P, &CourseEntry::S, &CourseEntry::V, &CourseEntry::ECTS})
        entry.*number = chance.OneOf(numbers);
    entry.Tip = chance.PerMille(100) ? " OBVEZNI" : chance.OneOf(Types);
    entry.Semestar = std::to_string(chance.Between(1, 6));
    entry.StudijID = chance.Between(0, LargestID);
    for (int i = chance.Between(1, 3); i > 0; --i)
        entry.SmjerIDs.push_back(chance.Between(1, LargestID));
    for (auto& nastavnikID : entry.NastavnikIDs)
        if (chance.PerMille(600))
            nastavnikID = chance.Between(1, LargestID);
    return entry;
}
