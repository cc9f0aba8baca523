#include "check/FileRules.h"

#include "check/FileLines.h"
#include "check/Letters.h"
#include "check/Quotes.h"
#include "check/Values.h"
#include "data/Windows1250.h"
#include "data/modData.h"
#include "text/Numbers.h"

#include <utility>

namespace Check
{

namespace
{

constexpr std::string_view WordsOfUtf16 =
    "datoteka je u zapisu UTF-16, iz kojeg program ne može čitati podatke";
constexpr std::string_view WordsOfUtf8 =
    "datoteka je u zapisu UTF-8 bez oznake: umjesto svakog našeg slova program čita dva pogrešna znaka";
constexpr std::string_view WordsOfUtf8Line =
    "redak je u zapisu UTF-8, a drugi redci u zapisu windows-1250: program u njemu čita pogrešna slova";
constexpr std::string_view WordsOfMark =
    "na početku je oznaka UTF-8, a slova su u zapisu windows-1250: program bi ih zamijenio upitnicima";
constexpr std::string_view WordsOfQuotes =
    "cijelo je polje u navodnicima, kako ga piše tablični kalkulator: ";
constexpr std::string_view WordsOfQuotedEnd = "polje u navodnicima sadrži točku-zarez ili prijelom retka: ";

/// One pass over a file, from its first byte to the last.
class FileRules
{
public:
    FileRules(std::string_view bytes, const modData::TableLayout& layout, Findings& findings)
        : m_bytes(bytes),
          m_layout(layout),
          m_found(findings),
          m_encoding(EncodingOf(bytes))
    {
    }

    void Run()
    {
        if (m_encoding.In == Letters::Utf16)
            return Add(Group::Danger, 0, WordsOfUtf16);
        if (m_encoding.HasMark)
            m_bytes.remove_prefix(modData::Utf8Mark.size());
        if (m_encoding.HasMark && m_encoding.In != Letters::Utf8)
            AddMendable(Group::Danger, {m_layout.FileName, 1, {}}, std::string(WordsOfMark));
        m_hasQuotes = m_bytes.find('"') != std::string_view::npos;
        m_hasNuls = m_bytes.find('\0') != std::string_view::npos;
        FindHeader();
        ForEachLine(m_bytes, [this](const FileLine& line) { FindInLine(line); });
        AddLoneLF();
    }

private:
    void Add(Group group, std::size_t line, std::string_view text, std::string_view column = {})
    {
        m_found.push_back({group, {m_layout.FileName, line, column}, std::string(text)});
    }

    void AddMendable(Group group, const FieldPlace& place, std::string text)
    {
        m_found.push_back({group, place, std::move(text), true});
    }

    std::string_view ColumnAt(std::size_t position) const
    {
        return position < m_layout.Columns.size() ? m_layout.Columns[position] : std::string_view();
    }

    /// Bytes of the file as text.
    std::string Decoded(std::string_view bytes) const
    {
        return m_encoding.In == Letters::Utf8 ? std::string(bytes) : FromWindows1250(bytes);
    }

    void FindHeader()
    {
        std::string_view bytes = m_bytes;
        const std::string_view line = bytes.empty() ? bytes : TakeFileLine(bytes, 1).Text;
        const std::string header = m_layout.Header();
        if (line == header)
            return;
        for (const modData::Table* table : modData::AllTables())
            if (line == table->Layout().Header())
                return Add(Group::Danger, 1,
                           "zaglavlje je od datoteke " + std::string(table->Layout().FileName) + ": " +
                               InQuotes(line) + " umjesto " + InQuotes(header));
        if (IsNumeric(line.substr(0, line.find(';'))))
            return Add(Group::Danger, 1,
                       "nedostaje zaglavlje " + InQuotes(header) +
                           "; program ovaj redak preskače: " + InQuotes(Decoded(line)));
        Add(Group::Danger, 1, "zaglavlje je " + InQuotes(Decoded(line)) + " umjesto " + InQuotes(header));
    }

    void FindInLine(const FileLine& line)
    {
        if (line.End == "\n" && m_loneLFs++ == 0)
            m_firstLoneLF = line.Number;
        const FieldPlace place = {m_layout.FileName, line.Number, {}};
        if (line.Number > 1 && IsSeparatorsOnly(line.Text))
            AddMendable(Group::Note, place, "redak ima samo točke-zareze, bez podataka");
        if (!m_encoding.HasMark && m_encoding.In == Letters::Mixed && IsUtf8Text(line.Text))
            Add(Group::Danger, line.Number, WordsOfUtf8Line);
        if (!m_encoding.HasMark && m_encoding.In == Letters::Utf8 && !m_isUtf8Reported &&
            IsBeyondAsciiUtf8(line.Text))
        {
            AddMendable(Group::Danger, place, std::string(WordsOfUtf8));
            m_isUtf8Reported = true;
        }
        const bool hasQuote = m_hasQuotes && line.Text.find('"') != std::string_view::npos;
        if (hasQuote || m_hasNuls || m_encoding.In == Letters::Utf8) // false for most files
            ForEachField(line.Text,
                         [&](std::string_view field, std::size_t position) {
                             FindInField(field, {m_layout.FileName, line.Number, ColumnAt(position)});
                         });
        if (hasQuote)
            FindQuotedEnd(line);
    }

    void FindInField(std::string_view field, const FieldPlace& place)
    {
        if (field.find('\0') != std::string_view::npos)
            m_found.push_back({Group::Danger, place, "polje sadrži znak NUL: " + InQuotes(Decoded(field))});
        if (m_encoding.In == Letters::Utf8)
            if (const std::string lost = LettersLost(field); !lost.empty())
                m_found.push_back({Group::Danger, place,
                                   "u zapisu windows-1250 nema ovih znakova, program bi ih zamijenio "
                                   "upitnicima: " +
                                       Shown(lost)});
        if (field.starts_with('"') && IsQuoted(field))
            AddMendable(Group::Note, place, std::string(WordsOfQuotes) + Shown(Decoded(field)));
    }

    void FindQuotedEnd(const FileLine& line)
    {
        const std::string_view rest =
            m_bytes.substr(static_cast<std::size_t>(line.Text.data() - m_bytes.data()));
        if (const std::size_t size = QuotedRecordSize(rest, m_layout.Columns.size()); size > 0)
            Add(Group::Note, line.Number,
                std::string(WordsOfQuotedEnd) + Shown(Decoded(rest.substr(0, size))));
    }

    void AddLoneLF()
    {
        if (m_loneLFs > 0)
            AddMendable(
                Group::Danger, {m_layout.FileName, m_firstLoneLF, {}},
                "kraj retka je samo LF umjesto CR LF, pa program redak i sljedeći čita kao jedan (takvih: " +
                    std::to_string(m_loneLFs) + ")");
    }

    std::string_view m_bytes;
    const modData::TableLayout& m_layout;
    Findings& m_found;
    Encoding m_encoding;
    std::size_t m_loneLFs = 0;
    std::size_t m_firstLoneLF = 0;
    bool m_isUtf8Reported = false;
    bool m_hasQuotes = false;
    bool m_hasNuls = false;
};

} // namespace

void FindInFile(std::string_view bytes, const modData::TableLayout& layout, Findings& findings)
{
    if (!bytes.empty())
        FileRules(bytes, layout, findings).Run();
}

} // namespace Check
