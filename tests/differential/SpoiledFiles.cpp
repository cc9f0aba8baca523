#include "differential/SpoiledFiles.h"

#include "data/Windows1250.h"

#include <functional>

using namespace std::string_literals;

namespace
{

using Change = std::string (*)(const std::string& text, Chance& chance);

/// Changes each of a line's fields; line ends stay.
std::string WithFields(const std::string& bytes, const std::function<std::string(const std::string&)>& change)
{
    std::string changed;
    std::string field;
    for (const char c : bytes + '\0')
    {
        const bool isEnd = c == ';' || c == '\r' || c == '\n' || c == '\0';
        if (isEnd)
            changed += change(field);
        if (isEnd)
            field.clear();
        if (isEnd && c != '\0')
            changed += c;
        else if (!isEnd)
            field += c;
    }
    return changed;
}

std::string InQuotes(const std::string& field)
{
    std::string quoted = "\"";
    for (const char c : field)
        quoted += c == '"' ? "\"\""s : std::string(1, c);
    return quoted + "\"";
}

/// Puts a text before or after some of the lines.
std::string WithLines(const std::string& bytes, const std::string& line, Chance& chance)
{
    std::string changed;
    for (const char c : bytes)
    {
        changed += c;
        if (c == '\n' && chance.PerMille(200))
            changed += line;
    }
    return changed;
}

const Change Changes[] = {
    // All line ends, or some.
    [](const std::string& bytes, Chance&)
    {
        std::string changed = bytes;
        std::erase(changed, '\r');
        return changed;
    },
    [](const std::string& bytes, Chance& chance)
    {
        std::string changed;
        for (const char c : bytes)
            if (c != '\r' || !chance.PerMille(200))
                changed += c;
        return changed;
    },
    // Letters.
    [](const std::string& bytes, Chance&) { return FromWindows1250(bytes); },
    [](const std::string& bytes, Chance&) { return "\xEF\xBB\xBF" + bytes; },
    [](const std::string& bytes, Chance&) { return "\xEF\xBB\xBF" + FromWindows1250(bytes); },
    [](const std::string& bytes, Chance& chance) { return WithLines(bytes, "9;Ćuk Đ;Šž\r\n", chance); },
    [](const std::string& bytes, Chance& chance)
    { return WithLines(FromWindows1250(bytes), "9;漢;1\r\n", chance); },
    [](const std::string& bytes, Chance&)
    {
        std::string wide = "\xFF\xFE";
        for (const char c : bytes)
            wide.append(1, c).append(1, '\0');
        return wide;
    },
    [](const std::string& bytes, Chance& chance)
    { return bytes.substr(0, chance.Below(bytes.size() + 1)) + '\0' + bytes; },
    // Quotes: where needed, everywhere, or around several fields.
    [](const std::string& bytes, Chance&)
    {
        return WithFields(bytes, [](const std::string& field)
                          { return field.find('"') == std::string::npos ? field : InQuotes(field); });
    },
    [](const std::string& bytes, Chance&) { return WithFields(bytes, InQuotes); },
    [](const std::string& bytes, Chance& chance)
    {
        return WithFields(bytes, [&](const std::string& field)
                          { return chance.PerMille(100) ? InQuotes(InQuotes(field)) : field; });
    },
    [](const std::string& bytes, Chance& chance)
    {
        return WithFields(bytes,
                          [&](const std::string& field) {
                              return chance.PerMille(100)
                                         ? InQuotes(field + (chance.PerMille(500) ? ";" : "\n") + field)
                                         : field;
                          });
    },
    // Lines.
    [](const std::string& bytes, Chance& chance) { return WithLines(bytes, ";;;;\r\n", chance); },
    [](const std::string& bytes, Chance& chance) { return WithLines(bytes, "; ;\n", chance); },
    [](const std::string& bytes, Chance&) { return "ID;Naziv;Kratica;Razina\r\n" + bytes; },
};

} // namespace

CatalogueFiles Spoiled(CatalogueFiles files, Chance& chance)
{
    constexpr std::size_t counts[] = {0, 1, 1, 2, 4};
    for (std::size_t left = chance.OneOf(counts); left > 0; --left)
    {
        std::string& bytes = files[chance.Below(files.size())];
        bytes = chance.OneOf(Changes)(bytes, chance);
    }
    return files;
}
