#include "data/Errors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <system_error>

namespace
{

TEST(Errors, AFileErrorNamesItsCauseAndThePathAndHasItsNumber)
{
    constexpr struct
    {
        std::errc Cause;
        int Number;
        std::string_view Text;
    } causes[] = {
        {std::errc::no_such_file_or_directory, 53, "Datoteka ili mapa nije pronađena"},
        {std::errc::not_a_directory, 76, "Mapa nije pronađena"},
        {std::errc::is_a_directory, 75, "Umjesto datoteke ondje je mapa istoga imena"},
        {std::errc::permission_denied, 70,
         "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu"},
        {std::errc::operation_not_permitted, 70, "Pristup nije dopušten"},
        {std::errc::read_only_file_system, 70, "Disk je zaštićen od pisanja"},
        {std::errc::device_or_resource_busy, 70, "Datoteku koristi drugi program"},
        {std::errc::text_file_busy, 70, "Datoteku koristi drugi program"},
        {std::errc::timed_out, 70, "Katalog upravo čita ili sprema drugi primjerak programa"},
        {std::errc::no_space_on_device, 61, "Na disku nema dovoljno mjesta"},
        {std::errc::filename_too_long, 52, "Ime datoteke je predugačko"},
        {std::errc::invalid_argument, 52, "Ime datoteke nije ispravno"},
        {std::errc::io_error, 57, "Greška pri čitanju ili pisanju"},
    };
    for (const auto& [cause, number, text] : causes)
    {
        const FileError error(std::make_error_code(cause), "/mapa/Žuta.csv");
        EXPECT_EQ(error.Number(), number) << error.what();
        EXPECT_EQ(error.what(), std::string(text) + ": /mapa/Žuta.csv");
    }
}

TEST(Errors, AnUnknownCauseIsAnErrorOfReadingOrWriting)
{
    EXPECT_EQ(FileError(std::make_error_code(std::errc::file_too_large), "x").Number(), 57);
    EXPECT_EQ(FileError(std::error_code(123456, std::generic_category()), "x").Number(), 57);
}

TEST(Errors, AFileThatEndsTooSoonIsNamed)
{
    const InputPastEnd error("/mapa/db_zavod.csv");
    EXPECT_EQ(error.Number(), 62);
    EXPECT_STREQ(error.what(),
                 "Datoteka s podacima nedostaje ili je prazna (nema retka zaglavlja): /mapa/db_zavod.csv");
}

TEST(Errors, AFaultyFieldNamesItsValueFileLineAndColumn)
{
    const FieldPlace place = {"db_smjer.csv", 12, "StudijID"};
    EXPECT_STREQ(TypeMismatch("", place).what(),
                 "Vrijednost \"\" nije broj (datoteka db_smjer.csv, redak 12, stupac \"StudijID\").");
    EXPECT_STREQ(OverflowError("2147483648", place).what(),
                 "Broj \"2147483648\" je izvan dopuštenog raspona od -2147483648 do 2147483647 "
                 "(datoteka db_smjer.csv, redak 12, stupac \"StudijID\").");
    EXPECT_STREQ(SubscriptOutOfRange(place).what(),
                 "Redak ima premalo polja (datoteka db_smjer.csv, redak 12, stupac \"StudijID\").");
}

TEST(Errors, ALongValueIsCutAndItsControlCharactersAreVisible)
{
    std::string sixty;
    for (int i = 0; i < 60; ++i)
        sixty += "č";
    EXPECT_EQ(TypeMismatch(sixty).what(), "Vrijednost \"" + sixty + "\" nije broj.");
    EXPECT_EQ(TypeMismatch(sixty + "x").what(), "Vrijednost \"" + sixty + "…\" nije broj.");
    EXPECT_EQ(TypeMismatch(std::string(3'000'000, 'x')).what(),
              "Vrijednost \"" + std::string(60, 'x') + "…\" nije broj.");
    EXPECT_STREQ(TypeMismatch({"1\0\n\x1F\x7F\xC2\x83\xC2\xA0", 9}).what(),
                 "Vrijednost \"1\\x00\\x0a\\x1f\\x7f\\x83\xC2\xA0\" nije broj.");
    EXPECT_TRUE(std::string_view(OverflowError(std::string(1000, '9')).what())
                    .starts_with("Broj \"" + std::string(60, '9') + "…\" je izvan"));
}

TEST(Errors, TheFaultAndThePlaceCanBeReadSeparately)
{
    const FieldPlace place = {"db_smjer.csv", 12, "StudijID"};
    EXPECT_EQ(TypeMismatch("x", place).Fault(), "Vrijednost \"x\" nije broj");
    EXPECT_EQ(TypeMismatch("x", place).Place(), place);
    EXPECT_EQ(InputPastEnd("x").Fault(), InputPastEnd("x").what());
    EXPECT_EQ(InputPastEnd("x").Place(), FieldPlace());
}

TEST(Errors, ARowThatNoFileHoldsHasNoLine)
{
    EXPECT_STREQ(SubscriptOutOfRange({"db_smjer.csv", 0, "ID"}).what(),
                 "Redak ima premalo polja (datoteka db_smjer.csv, redak unesen u programu, stupac \"ID\").");
}

TEST(Errors, EveryKindHasItsNumber)
{
    EXPECT_EQ(TypeMismatch("x").Number(), 13);
    EXPECT_EQ(OverflowError().Number(), 6);
    EXPECT_EQ(OverflowError("99999999999").Number(), 6);
    EXPECT_EQ(SubscriptOutOfRange({"f", 2, "ID"}).Number(), 9);
}

TEST(Errors, EveryErrorOfAFieldHasTheNumberOfItsKind)
{
    const FieldPlace place = {"f", 2, "ID"};
    EXPECT_EQ(TypeMismatch("x", place).Number(), 13);
    EXPECT_EQ(OverflowError("99999999999", place).Number(), 6);
    EXPECT_STREQ(OverflowError().what(), "Zbroj je izvan dopuštenog raspona od -2147483648 do 2147483647.");
}

TEST(Errors, ASaveThatIsNotFinishedHasTheNumberAndTextOfItsCause)
{
    for (const std::errc cause :
         {std::errc::permission_denied, std::errc::no_space_on_device, std::errc::io_error})
    {
        const FileError failure(std::make_error_code(cause), "/mapa/db_zavod.csv");
        const SaveNotFinished error(failure);
        EXPECT_EQ(error.Number(), failure.Number());
        EXPECT_EQ(error.what(),
                  failure.what() + std::string("\r\n\r\nPromjene su sačuvane, ali još nisu upisane u sve "
                                               "datoteke kataloga. Ne uređujte te datoteke. "
                                               "Zatvorite druge programe koji ih koriste i ponovno pokrenite "
                                               "Varlostudije: spremanje će se dovršiti."));
    }
}

} // namespace
