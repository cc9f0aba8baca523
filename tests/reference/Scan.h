#pragma once

#include "reference/Reference.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The parts of the plain loops.

namespace reference
{

/// A field as stored. @throws SubscriptOutOfRange
const std::string& Field(const TextTable& table, const TextRow& row, std::size_t column);

/// A field as a whole number. @throws DataError
std::int32_t Number(const TextTable& table, const TextRow& row, std::size_t column);

/// A field as a whole number; 0 if it is not one. @throws SubscriptOutOfRange
std::int32_t SafeNumber(const TextTable& table, const TextRow& row, std::size_t column);

/// The first row whose first field is the number, by a scan; null if there is none. @throws as Number
const TextRow* FirstWithID(const TextTable& table, std::int32_t id);

/// A field of that row; empty if there is none. @throws as Number
std::string TextOfID(const TextTable& table, std::int32_t id, std::size_t column);

/// A course's link to a lecturer.
struct PlacedID
{
    std::int32_t NastavnikID;
    std::int32_t Redoslijed;
};

/// The first links of a course to lecturers, at most so many, by place. @throws as Number
std::vector<PlacedID> LinkedNastavnici(const Catalogue& catalogue, std::int32_t kolegijID, std::size_t most);

/// The search rule; the search text is as typed. @throws as Number
bool MatchesSearch(const Catalogue& catalogue, const TextRow& kolegij, const std::string& search);

/// True if a course is linked to a direction. @throws as Number
bool HasSmjer(const Catalogue& catalogue, std::int32_t kolegijID, std::int32_t smjerID);

/// A lecturer's table of teaching load; hours and credits that are not numbers count as 0. @throws as Number
std::vector<ListRow> LecturerExportRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                        const LecturerFilter& filter);

/// The text without blanks at both ends.
std::string Trimmed(std::string_view text);

/// The text with the letters of windows-1250 in upper case.
std::string InUpperCase(std::string_view text);

/// True if the trimmed text is a word, given in upper case, in any case.
bool Reads(std::string_view text, std::string_view upperCaseWord);

/// True if a text comes before another in the Croatian alphabet.
bool StandsBefore(std::string_view a, std::string_view b);

} // namespace reference
