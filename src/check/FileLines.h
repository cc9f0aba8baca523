#pragma once

#include "data/Errors.h"
#include "data/Table.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Check
{

/// A line of a file as an editor shows it; CR LF, CR or LF ends it.
struct FileLine
{
    std::size_t Number; ///< From 1.
    std::string_view Text;
    std::string_view End; ///< Empty if the file's last line has no end.
};

/// Takes the first line off. There must be at least one byte.
FileLine TakeFileLine(std::string_view& bytes, std::size_t number);

/// Calls `visit` with each line.
template<typename Visit>
void ForEachLine(std::string_view bytes, const Visit& visit)
{
    for (std::size_t number = 1; !bytes.empty(); ++number)
        visit(TakeFileLine(bytes, number));
}

/// Calls `visit` with each field of a line and its position, from 0. Every ";" separates.
template<typename Visit>
void ForEachField(std::string_view line, const Visit& visit)
{
    for (std::size_t position = 0;; ++position)
    {
        const std::size_t end = std::min(line.find(';'), line.size());
        visit(line.substr(0, end), position);
        if (end == line.size())
            return;
        line.remove_prefix(end + 1);
    }
}

std::size_t FieldCount(std::string_view line);

/// True for a line of separators and blanks only, with at least one separator.
bool IsSeparatorsOnly(std::string_view line);

/// Turns a table's line numbers into those that an editor shows: for the table a lone LF does not end a line.
class EditorLines
{
public:
    EditorLines(std::string_view bytes, const modData::TableLayout& layout);

    FieldPlace Shown(FieldPlace place) const;

private:
    struct Start
    {
        std::size_t Offset;
        std::size_t Number;
    };

    std::string_view m_bytes;
    const modData::TableLayout& m_layout;
    std::vector<Start> m_starts; // of the table's lines; empty if both count alike
};

} // namespace Check
