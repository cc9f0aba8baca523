#include "reference/Scan.h"

#include "data/Errors.h"
#include "text/Numbers.h"

#include <iterator>

namespace reference
{

namespace
{

struct LetterPair
{
    std::string_view Lower;
    std::string_view Upper;
};

// The letters of windows-1250 beyond ASCII.
constexpr LetterPair Letters[] = {
    {"š", "Š"}, {"ś", "Ś"}, {"ť", "Ť"}, {"ž", "Ž"}, {"ź", "Ź"}, {"ł", "Ł"}, {"ą", "Ą"}, {"ş", "Ş"},
    {"ľ", "Ľ"}, {"ż", "Ż"}, {"ŕ", "Ŕ"}, {"á", "Á"}, {"â", "Â"}, {"ă", "Ă"}, {"ä", "Ä"}, {"ĺ", "Ĺ"},
    {"ć", "Ć"}, {"ç", "Ç"}, {"č", "Č"}, {"é", "É"}, {"ę", "Ę"}, {"ë", "Ë"}, {"ě", "Ě"}, {"í", "Í"},
    {"î", "Î"}, {"ď", "Ď"}, {"đ", "Đ"}, {"ń", "Ń"}, {"ň", "Ň"}, {"ó", "Ó"}, {"ô", "Ô"}, {"ő", "Ő"},
    {"ö", "Ö"}, {"ř", "Ř"}, {"ů", "Ů"}, {"ú", "Ú"}, {"ű", "Ű"}, {"ü", "Ü"}, {"ý", "Ý"}, {"ţ", "Ţ"},
};

// The Croatian alphabet, with each foreign letter beside the one that it is a variant of. A letter of two
// characters is tried before the letters that begin with the same character.
struct AlphabetLetter
{
    std::string_view Text;
    int Place;
};

constexpr AlphabetLetter Alphabet[] = {
    {"DŽ", 7}, {"LJ", 17}, {"NJ", 20}, {"A", 1},  {"Á", 1},  {"Â", 1},  {"Ă", 1},  {"Ä", 1},  {"Ą", 1},
    {"B", 2},  {"C", 3},   {"Ç", 3},   {"Č", 4},  {"Ć", 5},  {"D", 6},  {"Ď", 6},  {"Đ", 8},  {"E", 9},
    {"É", 9},  {"Ę", 9},   {"Ë", 9},   {"Ě", 9},  {"F", 10}, {"G", 11}, {"H", 12}, {"I", 13}, {"Í", 13},
    {"Î", 13}, {"J", 14},  {"K", 15},  {"L", 16}, {"Ł", 16}, {"Ľ", 16}, {"Ĺ", 16}, {"M", 18}, {"N", 19},
    {"Ń", 19}, {"Ň", 19},  {"O", 21},  {"Ó", 21}, {"Ô", 21}, {"Ő", 21}, {"Ö", 21}, {"P", 22}, {"Q", 23},
    {"R", 24}, {"Ŕ", 24},  {"Ř", 24},  {"S", 25}, {"Ś", 25}, {"Ş", 25}, {"ß", 25}, {"Š", 26}, {"T", 27},
    {"Ť", 27}, {"Ţ", 27},  {"U", 28},  {"Ů", 28}, {"Ú", 28}, {"Ű", 28}, {"Ü", 28}, {"V", 29}, {"W", 30},
    {"X", 31}, {"Y", 32},  {"Ý", 32},  {"Z", 33}, {"Ź", 33}, {"Ż", 33}, {"Ž", 34},
};

/// The place of a character or letter in the order: ASCII that is not a letter, then the letters, then
/// everything else.
struct Place
{
    int Group;
    int Order;

    bool operator==(const Place&) const = default;
    auto operator<=>(const Place&) const = default; // NOLINT(modernize-use-nullptr): no pointer is meant
};

/// Takes the first letter off an upper-case text that is not empty.
Place TakePlace(std::string_view& text)
{
    for (const AlphabetLetter& letter : Alphabet)
        if (text.starts_with(letter.Text))
        {
            text.remove_prefix(letter.Text.size());
            return {1, letter.Place};
        }
    // One byte is enough: UTF-8 keeps the order of the characters' codes.
    const int byte = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    return {byte < 0x80 ? 0 : 2, byte};
}

FieldPlace PlaceOf(const TextTable& table, const TextRow& row, std::size_t column)
{
    return {table.Fixed->FileName, row.Line, table.Fixed->Columns[column]};
}

} // namespace

const std::string& Field(const TextTable& table, const TextRow& row, std::size_t column)
{
    if (column >= row.Fields.size())
        throw SubscriptOutOfRange(PlaceOf(table, row, column));
    return row.Fields[column];
}

std::int32_t Number(const TextTable& table, const TextRow& row, std::size_t column)
{
    const std::string& text = Field(table, row, column);
    std::int32_t value = 0;
    const NumberKind reading = ParseLong(text, value);
    if (reading == NumberKind::NotNumeric)
        throw TypeMismatch(text, PlaceOf(table, row, column));
    if (reading == NumberKind::TooLarge)
        throw OverflowError(text, PlaceOf(table, row, column));
    return value;
}

std::int32_t SafeNumber(const TextTable& table, const TextRow& row, std::size_t column)
{
    return ToLongOrZero(Field(table, row, column));
}

const TextRow* FirstWithID(const TextTable& table, std::int32_t id)
{
    for (const TextRow& row : table.Rows)
        if (Number(table, row, 0) == id)
            return &row;
    return nullptr;
}

std::string TextOfID(const TextTable& table, std::int32_t id, std::size_t column)
{
    const TextRow* row = FirstWithID(table, id);
    return row == nullptr ? std::string() : Field(table, *row, column);
}

std::string Trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return std::string(text);
}

std::string InUpperCase(std::string_view text)
{
    std::string upper;
    while (!text.empty())
    {
        std::size_t taken = 1;
        if (text.front() >= 'a' && text.front() <= 'z')
            upper += static_cast<char>(text.front() - 'a' + 'A');
        else
        {
            std::string_view as = text.substr(0, 1);
            if (static_cast<unsigned char>(text.front()) >= 0x80)
                for (const LetterPair& letter : Letters)
                    if (text.starts_with(letter.Lower))
                    {
                        as = letter.Upper;
                        taken = letter.Lower.size();
                        break;
                    }
            upper += as;
        }
        text.remove_prefix(taken);
    }
    return upper;
}

bool Reads(std::string_view text, std::string_view upperCaseWord)
{
    return InUpperCase(Trimmed(text)) == upperCaseWord;
}

bool StandsBefore(std::string_view a, std::string_view b)
{
    const std::string upperA = InUpperCase(a);
    const std::string upperB = InUpperCase(b);
    std::string_view restA = upperA;
    std::string_view restB = upperB;
    while (!restA.empty() && !restB.empty())
    {
        const Place placeA = TakePlace(restA);
        const Place placeB = TakePlace(restB);
        if (placeA != placeB)
            return placeA < placeB;
    }
    return restA.empty() && !restB.empty();
}

} // namespace reference
