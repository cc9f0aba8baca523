#include "text/TabSeparated.h"

#include <string_view>

namespace
{

std::string OnOneLine(std::string_view cell)
{
    std::string line;
    for (std::size_t i = 0; i < cell.size(); ++i)
    {
        const bool isSecondOfBreak = cell[i] == '\n' && i > 0 && cell[i - 1] == '\r';
        if (!isSecondOfBreak)
            line += cell[i] == '\t' || cell[i] == '\r' || cell[i] == '\n' ? ' ' : cell[i];
    }
    return line;
}

} // namespace

std::string TabSeparated(std::span<const std::vector<std::string>> rows, const std::string& lineEnd)
{
    std::string text;
    for (const std::vector<std::string>& row : rows)
    {
        for (std::size_t column = 0; column < row.size(); ++column)
            text += (column > 0 ? "\t" : "") + OnOneLine(row[column]);
        text += lineEnd;
    }
    return text;
}
