#include "data/Errors.h"

#include <gtest/gtest.h>

#include <set>
#include <system_error>

namespace
{

TEST(Errors, AFileErrorNamesThePathAndHasTheNumberOfItsCause)
{
    constexpr struct
    {
        std::errc Cause;
        int Number;
    } causes[] = {
        {std::errc::no_such_file_or_directory, 53},
        {std::errc::not_a_directory, 76},
        {std::errc::is_a_directory, 75},
        {std::errc::permission_denied, 70},
        {std::errc::read_only_file_system, 70},
        {std::errc::no_space_on_device, 61},
        {std::errc::operation_not_permitted, 70},
        {std::errc::device_or_resource_busy, 70},
        {std::errc::timed_out, 70},
        {std::errc::filename_too_long, 52},
        {std::errc::invalid_argument, 52},
        {std::errc::io_error, 57},
    };
    std::set<std::string> descriptions;
    for (const auto& [cause, number] : causes)
    {
        const FileError error(std::make_error_code(cause), "/mapa/Žuta.csv");
        EXPECT_EQ(error.Number(), number) << error.what();
        EXPECT_TRUE(std::string_view(error.what()).ends_with(": /mapa/Žuta.csv")) << error.what();
        EXPECT_TRUE(descriptions.insert(error.what()).second) << error.what();
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
    EXPECT_STREQ(error.what(), "Datoteka je prazna, nedostaje joj redak zaglavlja: /mapa/db_zavod.csv");
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

} // namespace
