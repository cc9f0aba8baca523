#include "check/FileLines.h"

#include "text/Text.h"

namespace Check
{

namespace
{

bool HasLoneLF(std::string_view bytes)
{
    std::size_t at = bytes.find('\n');
    while (at != std::string_view::npos && at > 0 && bytes[at - 1] == '\r')
        at = bytes.find('\n', at + 1);
    return at != std::string_view::npos;
}

} // namespace

FileLine TakeFileLine(std::string_view& bytes, std::size_t number)
{
    const auto textEnd = std::ranges::find_if(bytes, [](char c) { return c == '\r' || c == '\n'; });
    const std::string_view text(bytes.begin(), textEnd);
    bytes.remove_prefix(text.size());
    const std::string_view end = bytes.substr(0, bytes.starts_with("\r\n") ? 2 : 1);
    bytes.remove_prefix(end.size());
    return {number, text, end};
}

std::size_t FieldCount(std::string_view line)
{
    return static_cast<std::size_t>(std::ranges::count(line, ';')) + 1;
}

bool IsSeparatorsOnly(std::string_view line)
{
    return line.find_first_not_of("; ") == std::string_view::npos && line.find(';') != std::string_view::npos;
}

EditorLines::EditorLines(std::string_view bytes, const modData::TableLayout& layout)
    : m_bytes(bytes),
      m_layout(layout)
{
    if (!HasLoneLF(bytes))
        return;
    bool isStart = true;
    ForEachLine(
        bytes,
        [&](const FileLine& line)
        {
            if (isStart)
                m_starts.push_back({static_cast<std::size_t>(line.Text.data() - bytes.data()), line.Number});
            isStart = line.End != "\n";
        });
}

FieldPlace EditorLines::Shown(FieldPlace place) const
{
    if (place.Line == 0 || place.Line > m_starts.size())
        return place;
    const auto column = std::ranges::find(m_layout.Columns, place.Column);
    auto before = column == m_layout.Columns.end() ? 0 : column - m_layout.Columns.begin(); // fields
    const Start& start = m_starts[place.Line - 1];
    place.Line = start.Number;
    for (std::size_t i = start.Offset; before > 0 && i < m_bytes.size(); ++i)
    {
        if (m_bytes[i] == '\n')
            ++place.Line;
        else if (m_bytes[i] == ';')
            --before;
    }
    return place;
}

} // namespace Check
