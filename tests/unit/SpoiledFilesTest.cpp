#include "check/Check.h"
#include "check/Mend.h"
#include "check/Report.h"
#include "data/modData.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

/// A file that a real program has spoiled, and the expected finding.
struct Spoiled
{
    std::string_view Folder; // in tests/data/spoiled; the README there tells how the file was made
    std::string_view Name;
    std::string_view Finding; // the beginning of a line of the report
    bool IsMended;            // to its former content
};

constexpr Spoiled SpoiledFiles[] = {
    {"libreoffice_utf8", "db_kolegij.csv", "db_kolegij.csv, redak 3: datoteka je u zapisu UTF-8 bez oznake",
     true},
    {"libreoffice_utf8", "db_kolegij.csv", "db_kolegij.csv, redak 1: kraj retka je samo LF", true},
    {"libreoffice_utf8", "db_kolegij.csv", "db_kolegij.csv, redak 56, Naziv: cijelo je polje u navodnicima",
     true},
    {"libreoffice_quote_all", "db_zavod.csv", "db_zavod.csv, redak 1, ID: cijelo je polje u navodnicima",
     true},
    {"libreoffice_quote_all", "db_zavod.csv", "db_zavod.csv, redak 3, Naziv: cijelo je polje u navodnicima",
     true},
    {"libreoffice_comma", "db_zavod.csv", "db_zavod.csv, redak 1: zaglavlje je \"ID,Naziv,Kratica\"", false},
    {"libreoffice_utf16", "db_zavod.csv", "db_zavod.csv: datoteka je u zapisu UTF-16", false},
    {"libreoffice_empty_rows", "db_kolegij.csv", "db_kolegij.csv, redak 1: kraj retka je samo LF", true},
    {"libreoffice_line_break", "db_zavod.csv", "db_zavod.csv, redak 3: polje u navodnicima sadrži", false},
    {"vim_unix_line_ends", "db_zavod.csv", "db_zavod.csv, redak 1: kraj retka je samo LF", true},
    {"vim_utf8", "db_nastavnici.csv", "db_nastavnici.csv, redak 2: datoteka je u zapisu UTF-8 bez oznake",
     true},
    {"vim_utf8_bom_greek", "db_zavod.csv", "db_zavod.csv, redak 2, Naziv: u zapisu windows-1250 nema", false},
    {"vim_semicolon", "db_kolegij.csv", "db_kolegij.csv, redak 3: redak ima previše polja: 10 umjesto 9",
     false},
    {"nano_utf8_row", "db_zavod.csv", "db_zavod.csv, redak 8: redak je u zapisu UTF-8", false},
    {"sed_mark", "db_nastavnici.csv", "db_nastavnici.csv, redak 1: na početku je oznaka UTF-8", true},
    {"cp_other_table", "db_zavod.csv", "db_zavod.csv, redak 1: zaglavlje je od datoteke db_studij.csv",
     false},
};

class SpoiledFileTest : public testing::TestWithParam<Spoiled>
{
};

TEST_P(SpoiledFileTest, IsFoundAndMendedOrNamed)
{
    const auto& [name, file, finding, isMended] = GetParam();
    const TestFolder folder;
    CopyDemo(folder);
    const std::string spoiled = SpoiledFile(name, file);
    WriteBytes(folder.Data() / file, spoiled);

    std::string lines;
    for (const Check::Finding& found : Check::FindingsOf(Check::ReadContents(folder.PathOf("Varlostudiji"))))
        lines += "\n" + Check::LineOf(found.Place, found.Text);
    EXPECT_TRUE(lines.find("\n" + std::string(finding)) != std::string::npos) << lines;

    const auto tables = modData::AllTables();
    const auto table =
        std::ranges::find(tables, file, [](const modData::Table* t) { return t->Layout().FileName; });
    const std::string mended = Check::Mend(spoiled, (*table)->Layout()).Bytes;
    EXPECT_EQ(mended == ReadBytes(DemoFolder() / file), isMended) << mended;
}

INSTANTIATE_TEST_SUITE_P(All, SpoiledFileTest, testing::ValuesIn(SpoiledFiles));

} // namespace
