#pragma once

#include "check/Finding.h"
#include "data/Table.h"

#include <string>
#include <string_view>
#include <vector>

namespace Check
{

/// Something that was mended, or was left because it needs a decision.
struct Change
{
    FieldPlace Place;
    std::string Text;
};

struct Mended
{
    std::string Bytes;
    std::vector<Change> Changes; ///< The differences from the file's bytes.
    std::vector<Change> Left;
};

/// Mends what needs no decision in a table's file: lone LFs, UTF-8 without a mark, a mark before windows-1250
/// text, a spreadsheet's quotes around a whole field, rows of separators. Mending again changes nothing.
Mended Mend(std::string_view bytes, const modData::TableLayout& layout);

} // namespace Check
