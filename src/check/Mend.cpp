#include "check/Mend.h"

#include "check/FileLines.h"
#include "check/Letters.h"
#include "check/Quotes.h"
#include "check/Values.h"
#include "data/Windows1250.h"
#include "data/modData.h"

#include <algorithm>
#include <span>
#include <utility>

namespace Check
{

namespace
{

constexpr std::string_view LoneLF = "\n";

/// Splits bytes into lines. A record with a line break in quotes is one line.
std::vector<FileLine> RecordsOf(std::string_view bytes, std::size_t columns)
{
    std::vector<FileLine> records;
    for (std::size_t number = 1; !bytes.empty();)
    {
        const std::size_t quoted = QuotedRecordSize(bytes, columns);
        const std::string_view text = bytes.substr(0, quoted);
        bytes.remove_prefix(quoted);
        FileLine rest = TakeFileLine(bytes, number);
        if (quoted > 0)
            rest.Text = text;
        records.push_back(rest);
        ForEachLine(rest.Text, [&](const FileLine& line) { number += line.End.empty() ? 0 : 1; });
        ++number;
    }
    return records;
}

bool IsWholeRow(const FileLine& record, std::size_t columns)
{
    return IsSeparatorsOnly(record.Text) || FieldCount(record.Text) == columns ||
           record.Text.find_first_not_of(' ') == std::string_view::npos ||
           QuotedRecordSize(record.Text, columns) > 0;
}

/// Mends the records of a file whose encoding is already right.
class RecordMender
{
public:
    RecordMender(const modData::TableLayout& layout, bool isUtf8, Mended& result)
        : m_layout(layout),
          m_columns(layout.Columns.size()),
          m_isUtf8(isUtf8),
          m_result(result)
    {
    }

    void Run(std::string_view bytes)
    {
        const std::vector<FileLine> records = RecordsOf(bytes, m_columns);
        if (records.empty())
            return;
        m_headerIsQuoted = IsQuotedThroughout(records.front().Text);
        m_hasCR =
            std::ranges::any_of(records, [](const FileLine& record) { return record.End.starts_with('\r'); });
        for (auto begin = records.begin(); begin != records.end();)
        {
            // As the table reads them: a lone LF does not end a line.
            auto end = std::find_if(begin, records.end(),
                                    [](const FileLine& record) { return record.End != LoneLF; });
            end = end == records.end() ? end : end + 1;
            MendTableLine({begin, end});
            begin = end;
        }
        if (m_loneLFs > 0)
            Report(m_result.Changes, m_firstLoneLF, {},
                   "krajevi redaka LF zamijenjeni su s CR LF (takvih: " + std::to_string(m_loneLFs) + ")");
    }

private:
    void Report(std::vector<Change>& changes, std::size_t line, std::string_view column, std::string text)
    {
        changes.push_back({{m_layout.FileName, line, column}, std::move(text)});
    }

    std::string Quoted(std::string_view bytes) const
    {
        return InQuotes(m_isUtf8 ? std::string(bytes) : FromWindows1250(bytes));
    }

    /// If other lines end in CR, a lone LF may be part of a field: it is mended only between two whole rows.
    void MendTableLine(std::span<const FileLine> records)
    {
        const bool hasLoneLF = records.front().End == LoneLF;
        const bool isClear = !hasLoneLF || !m_hasCR ||
                             std::ranges::all_of(records, [this](const FileLine& record)
                                                 { return IsWholeRow(record, m_columns); });
        if (!isClear)
            Report(m_result.Left, records.front().Number, {},
                   "LF usred retka nije zamijenjen, jer nije jasno gdje redak završava");
        for (const FileLine& record : records)
            if (isClear)
                MendRecord(record);
            else
                m_result.Bytes.append(record.Text).append(record.End);
    }

    void MendRecord(const FileLine& record)
    {
        const bool isHeader = record.Number == 1;
        if (!isHeader && IsSeparatorsOnly(record.Text))
            return Report(m_result.Changes, record.Number, {}, "uklonjen je redak samih točaka-zareza");
        if (record.End == LoneLF && m_loneLFs++ == 0)
            m_firstLoneLF = record.Number;
        MendQuotes(record);
        m_result.Bytes += record.End == LoneLF ? "\r\n" : record.End;
    }

    void MendQuotes(const FileLine& record)
    {
        if (QuotedRecordSize(record.Text, m_columns) > 0)
            Report(m_result.Left, record.Number, {},
                   "navodnici oko točke-zareza ili prijeloma retka nisu uklonjeni: " + Quoted(record.Text));
        if (FieldCount(record.Text) != m_columns || QuotedRecordSize(record.Text, m_columns) > 0)
        {
            m_result.Bytes += record.Text;
            return;
        }
        ForEachField(record.Text,
                     [&](std::string_view field, std::size_t position)
                     {
                         if (position > 0)
                             m_result.Bytes += ';';
                         m_result.Bytes += MendedField(
                             field, {m_layout.FileName, record.Number, m_layout.Columns[position]});
                     });
    }

    /// Quotes may be part of a name. Doubled quotes inside, or a quoted header, show that they are a
    /// spreadsheet's.
    std::string MendedField(std::string_view field, const FieldPlace& place)
    {
        if (!IsQuoted(field) ||
            !(m_headerIsQuoted || field.substr(1, field.size() - 2).find('"') != std::string_view::npos))
            return std::string(field);
        std::string text = Unquoted(field);
        m_result.Changes.push_back(
            {place, "uklonjeni su navodnici: " + Quoted(field) + " je sada " + Quoted(text)});
        return text;
    }

    const modData::TableLayout& m_layout;
    std::size_t m_columns;
    bool m_isUtf8;
    Mended& m_result;
    bool m_headerIsQuoted = false;
    bool m_hasCR = false;
    std::size_t m_loneLFs = 0;
    std::size_t m_firstLoneLF = 0;
};

/// Why the encoding of a file cannot be mended without a decision; empty if it can.
std::string WhyLettersStay(std::string_view bytes, const Encoding& encoding)
{
    if (encoding.In == Letters::Utf16)
        return "datoteka u zapisu UTF-16 nije mijenjana";
    if (encoding.In == Letters::Mixed)
        return "datoteka nije mijenjana, jer su slova jednog dijela redaka u zapisu UTF-8, a drugih u "
               "windows-1250";
    if (encoding.In == Letters::Utf8)
        if (const std::string lost = LettersLost(bytes); !lost.empty())
            return "datoteka nije mijenjana, jer windows-1250 nema ovih znakova: " + Shown(lost);
    return {};
}

Mended MendOnce(std::string_view bytes, const modData::TableLayout& layout)
{
    const auto reported = [&](std::string text) {
        return std::vector<Change>{{{layout.FileName, 0, {}}, std::move(text)}};
    };
    const Encoding encoding = EncodingOf(bytes);
    const std::string_view unmarked = bytes.substr(encoding.HasMark ? modData::Utf8Mark.size() : 0);
    if (std::string reason = WhyLettersStay(unmarked, encoding); !reason.empty())
        return {std::string(bytes), {}, reported(std::move(reason))};

    Mended result;
    std::string text(unmarked);
    const bool staysUtf8 = encoding.HasMark && encoding.In == Letters::Utf8; // the program converts it
    if (staysUtf8)
        result.Bytes = modData::Utf8Mark;
    else if (encoding.HasMark)
        result.Changes = reported("uklonjena je oznaka UTF-8 ispred slova u zapisu windows-1250");
    else if (encoding.In == Letters::Utf8)
    {
        text = ToWindows1250(text);
        result.Changes = reported("zapis UTF-8 bez oznake pretvoren je u windows-1250");
    }
    RecordMender(layout, staysUtf8, result).Run(text);
    return result;
}

} // namespace

Mended Mend(std::string_view bytes, const modData::TableLayout& layout)
{
    Mended mended = MendOnce(bytes, layout);
    if (mended.Changes.empty() || MendOnce(mended.Bytes, layout).Changes.empty())
        return mended;
    return {std::string(bytes),
            {},
            {{{layout.FileName, 0, {}}, "datoteka nije mijenjana, jer se može popraviti na više načina"}}};
}

} // namespace Check
