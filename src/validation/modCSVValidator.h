#pragma once

#include "data/Table.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The checks that decide whether the tables may be saved or exported: broken references, duplicate
/// identifiers, values out of range. Hours, credits, types and departments are not checked on purpose.
/// Everything here throws DataError for a number that cannot be read.
namespace modCSVValidator
{

/// A test that a row fails, and the field that it checks.
struct Message
{
    std::string Text;
    FieldPlace Place;
};

using Messages = std::vector<Message>;

bool ZavodExists(std::int32_t id);
bool NastavnikExists(std::int32_t id);
bool StudijExists(std::int32_t id);
bool SmjerExists(std::int32_t id);
bool KolegijExists(std::int32_t id);

// Each checks one table, and appends a message for every test that a row fails.

void CheckNastavnici(Messages& messages);
void CheckKolegiji(Messages& messages);
void CheckKolegijNastavnici(Messages& messages);
void CheckKolegijSmjerovi(Messages& messages);
void CheckSmjerovi(Messages& messages);
void CheckStudiji(Messages& messages);

/// The same tests for a single row of a table.
struct RowCheck
{
    const modData::Table& Rows;
    void (*Check)(const modData::Row& row, Messages& messages);
};
extern const std::array<RowCheck, 6> RowChecks;

/// The messages of all checks of the loaded tables, in a fixed order.
Messages AllMessages();

/// True if there are no messages.
bool ValidateAll();

} // namespace modCSVValidator
