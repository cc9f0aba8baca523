#include "ui/course_editor/CourseEntry.h"

#include "data/CheckedNumbers.h"
#include "data/TableChoices.h"
#include "data/modData.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <string_view>

namespace
{

struct NumberField
{
    EntryField Field;
    std::string CourseEntry::*Text;
    std::string_view Name;
};

constexpr NumberField NumberFields[] = {
    {EntryField::P, &CourseEntry::P, "P"},
    {EntryField::S, &CourseEntry::S, "S"},
    {EntryField::V, &CourseEntry::V, "V"},
    {EntryField::ECTS, &CourseEntry::ECTS, "ECTS"},
};

constexpr EntryField NastavnikFields[] = {EntryField::Nastavnik1, EntryField::Nastavnik2,
                                          EntryField::Nastavnik3};

std::optional<ValidationError> CheckNumber(const NumberField& field, const std::string& text)
{
    std::int32_t value = 0;
    if (ParseLong(text, value) != NumberKind::Whole)
        return ValidationError{field.Field, std::string(field.Name) + " mora biti broj."};
    if (value < 0)
        return ValidationError{field.Field, std::string(field.Name) + " mora biti nenegativan broj."};
    return std::nullopt;
}

std::optional<ValidationError> CheckNositelji(const CourseEntry& entry)
{
    const auto& ids = entry.NastavnikIDs;
    if (ids == std::array<std::optional<std::int32_t>, NositeljPlaces>{})
        return ValidationError{NastavnikFields[0], "Odaberite barem jednog nastavnika."};
    for (std::size_t later = 1; later < ids.size(); ++later)
        for (std::size_t earlier = 0; earlier < later; ++earlier)
            if (ids[earlier].value_or(0) != 0 && ids[earlier] == ids[later])
                return ValidationError{NastavnikFields[later],
                                       "Ne možete odabrati istog nastavnika više puta. Promijenite odabir."};
    return std::nullopt;
}

/// The fields of the course's row; hours and credits as plain whole numbers.
std::vector<std::string> KolegijFields(std::int32_t id, const CourseEntry& entry)
{
    std::vector<std::string> fields = {std::to_string(id), std::string(TrimBlanks(entry.Naziv))};
    for (const NumberField& field : NumberFields)
        fields.push_back(std::to_string(ToLong(entry.*field.Text)));
    fields.insert(fields.end(), {entry.Tip, entry.Semestar, std::to_string(entry.StudijID)});
    return fields;
}

void AppendLinks(std::int32_t id, const CourseEntry& entry)
{
    const std::string kolegijID = std::to_string(id);
    for (const std::int32_t smjerID : entry.SmjerIDs)
        modData::KolegijSmjerovi.Append({kolegijID, std::to_string(smjerID)});
    for (std::size_t i = 0; i < entry.NastavnikIDs.size(); ++i)
        if (const std::optional<std::int32_t> nastavnikID = entry.NastavnikIDs[i])
            modData::KolegijNastavnici.Append(
                {kolegijID, std::to_string(*nastavnikID), "Nositelj", std::to_string(i + 1)});
}

/// The course's holders by place. Links to lecturers that the editor does not offer are ignored.
std::array<std::optional<std::int32_t>, NositeljPlaces> NositeljiOf(std::int32_t kolegijID)
{
    const std::vector<Choice> offered = NamedNastavnikChoices();
    std::array<std::optional<std::int32_t>, NositeljPlaces> ids;
    for (const modData::Row& link :
         modData::KolegijNastavnici.Matching(KolegijNastavnik::KolegijID, kolegijID))
    {
        const std::int32_t place = link.Number(KolegijNastavnik::Redoslijed);
        if (place < 1 || place > static_cast<std::int32_t>(NositeljPlaces))
            continue;
        const std::int32_t id = link.Number(KolegijNastavnik::NastavnikID);
        if (std::ranges::find(offered, id, &Choice::Data) != offered.end())
            ids[static_cast<std::size_t>(place - 1)] = id;
    }
    return ids;
}

} // namespace

std::optional<ValidationError> CheckEntry(const CourseEntry& entry)
{
    if (TrimBlanks(entry.Naziv).empty())
        return ValidationError{EntryField::Naziv, "Unesite naziv kolegija."};
    for (const NumberField& field : NumberFields)
        if (std::optional<ValidationError> fault = CheckNumber(field, entry.*field.Text))
            return fault;
    if (entry.Semestar.empty())
        return ValidationError{EntryField::Semestar, "Odaberite semestar."};
    if (!EqualsIgnoreCase(entry.Tip, "IZBORNI") && !EqualsIgnoreCase(entry.Tip, "OBVEZNI"))
        return ValidationError{EntryField::Tip, "Odaberite tip kolegija (obvezni/izborni)."};
    if (entry.SmjerIDs.empty())
        return ValidationError{EntryField::Smjerovi, "Odaberite barem jedan smjer."};
    return CheckNositelji(entry);
}

void AddKolegij(const CourseEntry& entry)
{
    const std::int32_t id = modData::NextKolegijID();
    modData::Kolegiji.Append(KolegijFields(id, entry));
    AppendLinks(id, entry);
}

void ReplaceKolegij(std::int32_t id, const CourseEntry& entry)
{
    if (const std::optional<std::size_t> position = modData::Kolegiji.FindPosition(Kolegij::ID, id))
        modData::Kolegiji.Replace(*position, KolegijFields(id, entry));
    else
        modData::Kolegiji.Append(KolegijFields(id, entry));
    modData::KolegijSmjerovi.RemoveMatches(KolegijSmjer::KolegijID, id);
    modData::KolegijNastavnici.RemoveMatches(KolegijNastavnik::KolegijID, id);
    AppendLinks(id, entry);
}

std::optional<CourseEntry> EntryOf(std::int32_t kolegijID)
{
    const modData::Row* kolegij = modData::Kolegiji.FindFirst(Kolegij::ID, kolegijID);
    if (kolegij == nullptr)
        return std::nullopt;

    CourseEntry entry;
    entry.Naziv = kolegij->Field(Kolegij::Naziv);
    entry.P = kolegij->Field(Kolegij::P);
    entry.S = kolegij->Field(Kolegij::S);
    entry.V = kolegij->Field(Kolegij::V);
    entry.ECTS = kolegij->Field(Kolegij::ECTS);
    entry.Tip = kolegij->Field(Kolegij::Tip);
    entry.Semestar = kolegij->Field(Kolegij::Semestar);
    for (const modData::Row& link : modData::KolegijSmjerovi.Matching(KolegijSmjer::KolegijID, kolegijID))
        entry.SmjerIDs.push_back(link.Number(KolegijSmjer::SmjerID));
    entry.NastavnikIDs = NositeljiOf(kolegijID);
    return entry;
}
