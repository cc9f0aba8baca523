#pragma once

#include "support/TestFolder.h"

#include <wx/font.h>
#include <wx/fontenum.h>

#include <array>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

// A font with a given name, for tests of the program on a system that has that font.

/// The bytes of a whole number in a font file, the highest first.
inline std::string FontNumber(std::size_t number, int bytes)
{
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text.push_back(static_cast<char>(number >> shift));
    return text;
}

/// The table of names in a font file; all of them are the family's name.
inline std::string FontNames(std::string_view family)
{
    std::string wide;
    for (const char letter : family)
        wide.append(1, '\0').append(1, letter);
    constexpr std::array<std::size_t, 4> names = {1, 2, 4, 6}; // family, style, whole name, PostScript name
    std::string table = FontNumber(0, 2) + FontNumber(names.size(), 2) + FontNumber(6 + 12 * names.size(), 2);
    for (const std::size_t name : names)
        table += FontNumber(3, 2) + FontNumber(1, 2) + FontNumber(0x409, 2) + FontNumber(name, 2) +
                 FontNumber(wide.size(), 2) + FontNumber(0, 2);
    return table + wide;
}

/// A font file with its family's name replaced.
inline std::string RenamedFont(std::string font, std::string_view family)
{
    constexpr std::size_t directory = 12;
    constexpr std::size_t entrySize = 16;
    const std::size_t entry = font.find("name", directory);
    if (entry == std::string::npos || (entry - directory) % entrySize != 0)
        throw std::runtime_error("not a font");
    font.resize((font.size() + 3) / 4 * 4);
    const std::string names = FontNames(family);
    font.replace(entry + 8, 8, FontNumber(font.size(), 4) + FontNumber(names.size(), 4));
    return font + names;
}

/// A font file that stays until this process ends, which reads it whenever it draws.
class FontFile
{
public:
    explicit FontFile(std::string_view bytes) { WriteBytes(m_file, bytes); }
    ~FontFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_file, ignored);
    }
    FontFile(const FontFile&) = delete;
    FontFile& operator=(const FontFile&) = delete;

    wxString Name() const { return m_file.wstring(); }

private:
    std::filesystem::path m_file = std::filesystem::temp_directory_path() /
                                   ("varlo-font-" + std::to_string(std::random_device()()) + ".ttf");
};

/// Gives this process the font "Segoe UI" if the system does not have it: a copy of another font.
inline bool ProvideSegoeUi()
{
    const char* const family = "Segoe UI";
    if (wxFontEnumerator::IsValidFacename(family))
        return true;
#ifdef _WIN32
    const char* const source = "C:\\windows\\Fonts\\tahoma.ttf";
#else
    const char* const source = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
#endif
    static const FontFile file(RenamedFont(ReadBytes(source), family));
    const bool added = wxFont::AddPrivateFont(file.Name());
    wxFontEnumerator::InvalidateCache();
    return added && wxFontEnumerator::IsValidFacename(family);
}
