#include "ects/WorkloadModel.h"

#include "data/Errors.h"
#include "support/WorkloadWarnings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>

namespace
{

WorkloadFields Recalculated(WorkloadFields fields, const std::string& separator = ",")
{
    WorkloadModel(fields, separator).Recalculate();
    return fields;
}

TEST(WorkloadModel, ShowsZerosForAnEmptyForm)
{
    for (const std::string separator : {",", "."})
    {
        const WorkloadFields fields = Recalculated({}, separator);
        const std::string zero = "0" + separator + "0";
        EXPECT_EQ(fields.KontaktniUkupno, zero);
        EXPECT_EQ(fields.SamostalniUkupno, zero);
        for (const std::string& hours : fields.LitIzracun)
            EXPECT_EQ(hours, zero);
        EXPECT_EQ(fields.LitUkupno, zero);
        EXPECT_EQ(fields.PismeniIzracun, zero);
        EXPECT_EQ(fields.OstaleMetodeUkupno, zero);
        EXPECT_EQ(fields.UkupnoOpter, (std::array{zero, zero, zero, zero + "0", zero + "0"}));
        EXPECT_EQ(fields.Upozorenje, NoPages);
        EXPECT_EQ(fields.BojaUpozorenja, TextColours::Red);
        EXPECT_EQ(fields.KontaktniSati, (std::array<std::string, 3>{})) << "entries stay as they are";
    }
}

TEST(WorkloadModel, SumsContactTeachingAndSelfStudy)
{
    WorkloadFields fields;
    fields.KontaktniSati = {"2.5", "2,5", "abc"};
    fields.SamostalniSati = {" 7 ", "-1", ""};
    fields = Recalculated(fields);
    EXPECT_EQ(fields.KontaktniUkupno, "5,0");
    EXPECT_EQ(fields.SamostalniUkupno, "6,0");
    EXPECT_EQ(fields.UkupnoOpter[ContactTotal], "5,0");
    EXPECT_EQ(fields.UkupnoOpter[NonContactTotal], "6,0");
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "11,0");
}

TEST(WorkloadModel, ProposesSelfStudyByTheKindOfTeaching)
{
    const char* const proposals[] = {"15,0", "30,0", "15,0"};
    for (std::size_t row = 0; row < ContactRows.size(); ++row)
    {
        WorkloadFields fields;
        fields.KontaktniSati[row] = "30";
        fields.SamostalniSati[row] = "  ";
        WorkloadModel(fields, ",").ProposeSelfStudy(row);
        EXPECT_EQ(fields.SamostalniSati[row], proposals[row]);
        EXPECT_EQ(fields.KontaktniUkupno, "") << "a proposal alone computes nothing";
    }
}

TEST(WorkloadModel, ProposesNothingOverWhatIsThere)
{
    for (const char* entered : {"0", "x", " 0 ", "12"})
    {
        WorkloadFields fields;
        fields.KontaktniSati[0] = "30";
        fields.SamostalniSati[0] = entered;
        WorkloadModel(fields, ",").ProposeSelfStudy(0);
        EXPECT_EQ(fields.SamostalniSati[0], entered);
    }
}

TEST(WorkloadModel, ProposesZeroForAnEmptyRow)
{
    WorkloadFields fields;
    WorkloadModel(fields, ".").ProposeSelfStudy(1);
    EXPECT_EQ(fields.SamostalniSati[1], "0.0");
}

TEST(WorkloadModel, HasNoSelfStudyFactorBeyondItsRows)
{
    EXPECT_EQ(WorkloadModel::SelfStudyFactor(0), 0.5);
    EXPECT_EQ(WorkloadModel::SelfStudyFactor(1), 1.0);
    EXPECT_EQ(WorkloadModel::SelfStudyFactor(2), 0.5);
    EXPECT_EQ(WorkloadModel::SelfStudyFactor(3), 0);
}

TEST(WorkloadModel, CountsLiteratureByItsNorm)
{
    WorkloadFields fields;
    fields.LitStranice = {"100", "250", "50", "10"};
    fields.LitProcjena = {"1", "2,5", "x", ""};
    fields = Recalculated(fields);
    EXPECT_EQ(fields.LitIzracun, (std::array<std::string, 4>{"7,0", "25,0", "10,0", "3,0"}));
    EXPECT_EQ(fields.LitUkupno, "45,0");

    fields.LitByEstimate = true;
    fields = Recalculated(fields);
    EXPECT_EQ(fields.LitIzracun[1], "25,0") << "the norm hours of a row are shown either way";
    EXPECT_EQ(fields.LitUkupno, "3,5");
}

TEST(WorkloadModel, RoundsTheLiteratureTotalAndNotItsRowsFirst)
{
    WorkloadFields fields;
    fields.LitStranice = {"45", "1,5", "", ""};
    fields = Recalculated(fields);
    EXPECT_EQ(fields.LitIzracun[0], "3,2");
    EXPECT_EQ(fields.LitIzracun[1], "0,2");
    EXPECT_EQ(fields.LitUkupno, "3,3");
}

TEST(WorkloadModel, CountsAWrittenAssignmentByPagesBeforeWords)
{
    const auto computed = [](const char* pages, const char* words)
    {
        WorkloadFields fields;
        fields.OpsegStranice = pages;
        fields.OpsegRijeci = words;
        return Recalculated(fields).PismeniIzracun;
    };
    EXPECT_EQ(computed("10", ""), "25,0");
    EXPECT_EQ(computed("", "2000"), "5,0");
    EXPECT_EQ(computed("10", "2000"), "25,0");
    EXPECT_EQ(computed("0", "2000"), "5,0");
    EXPECT_EQ(computed("-10", "2000"), "5,0");
    EXPECT_EQ(computed("-10", "-2000"), "0,0");
    EXPECT_EQ(computed("", ""), "0,0");
}

TEST(WorkloadModel, CountsTheWrittenEstimateWithAllItsDecimals)
{
    WorkloadFields fields;
    fields.PismeniByEstimate = true;
    fields.OpsegStranice = "10";
    fields.PismeniProcjena = "1,24";
    fields.OstaleMetode[0] = "0,1";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.PismeniIzracun, "25,0");
    EXPECT_EQ(fields.UkupnoOpter[NonContactTotal], "1,3");
    EXPECT_EQ(fields.UkupnoOpter[EctsPoints], "0,04");
}

TEST(WorkloadModel, SumsEveryOtherMethod)
{
    WorkloadFields fields;
    for (std::size_t i = 0; i < OtherMethods.size(); ++i)
        fields.OstaleMetode[i] = std::to_string(1 << i);
    EXPECT_EQ(Recalculated(fields).OstaleMetodeUkupno, "511,0");

    std::array<int, OtherMethods.size()> indices{};
    std::ranges::transform(OtherMethods, indices.begin(), &OtherMethod::Index);
    EXPECT_EQ(indices, (std::array{0, 1, 2, 3, 4, 5, 6, 8, 9}));
}

TEST(WorkloadModel, TurnsHoursIntoPoints)
{
    WorkloadFields fields;
    fields.KontaktniSati[0] = "60";
    fields.SamostalniSati[0] = "90";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "150,0");
    EXPECT_EQ(fields.UkupnoOpter[EctsPoints], "5,00") << "30 hours when none are chosen";
    EXPECT_EQ(fields.UkupnoOpter[WeeklyPoints], "3,75");

    fields.SatiPoEcts = "30";
    EXPECT_EQ(Recalculated(fields).UkupnoOpter, fields.UkupnoOpter);
    fields.SatiPoEcts = "25";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.UkupnoOpter[EctsPoints], "6,00");
    EXPECT_EQ(fields.UkupnoOpter[WeeklyPoints], "4,50");
}

TEST(WorkloadModel, TakesTheTotalsFromTheFiguresAsShown)
{
    WorkloadFields fields;
    fields.SamostalniSati[0] = "0.04";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.SamostalniUkupno, "0,0");
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "0,0");

    fields.KontaktniSati[0] = fields.OstaleMetode[0] = "0.04";
    fields.LitStranice[1] = "0.4";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "0,0") << "four totals of 0,0, although they come to 0,16";
    EXPECT_EQ(fields.UkupnoOpter[EctsPoints], "0,00");

    fields.KontaktniSati[0] = fields.LitStranice[1] = "";
    fields.SamostalniSati[0] = "0.05";
    fields.OstaleMetode[0] = "0.05";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.UkupnoOpter[NonContactTotal], "0,2");
}

TEST(WorkloadModel, LeavesWhatItComputedBeforeAnError)
{
    WorkloadFields fields;
    fields.KontaktniSati[0] = "30";
    fields.OstaleMetode[8] = "4";
    fields.UkupnoOpter[WholeTotal] = "as it was";
    fields.Upozorenje = "as it was";
    fields.SatiPoEcts = "abc";
    EXPECT_THROW(WorkloadModel(fields, ",").Recalculate(), TypeMismatch);
    EXPECT_EQ(fields.KontaktniUkupno, "30,0");
    EXPECT_EQ(fields.OstaleMetodeUkupno, "4,0");
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "as it was");
    EXPECT_EQ(fields.Upozorenje, "as it was");
}

TEST(WorkloadModel, ShowsZeroForAFigureThatIsTooLarge)
{
    WorkloadFields fields;
    fields.KontaktniSati = {"1e308", "1e308", "-1"};
    fields.OpsegStranice = "1e308";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.KontaktniUkupno, "0,0");
    EXPECT_EQ(fields.PismeniIzracun, "0,0");
    EXPECT_EQ(fields.UkupnoOpter[WholeTotal], "0,0");
}

// Warnings

TEST(WorkloadModel, WarnsOfTheFirstThingThatIsWrong)
{
    WorkloadFields fields;
    const auto warning = [&]
    {
        fields = Recalculated(fields);
        EXPECT_EQ(fields.BojaUpozorenja,
                  fields.Upozorenje == NoWarning ? TextColours::Blue : TextColours::Red);
        return fields.Upozorenje;
    };

    // At first everything is wrong; each change removes the warning shown.
    fields.KontaktniSati[0] = "-1";
    fields.OpsegStranice = fields.OpsegRijeci = "1";
    fields.LitByEstimate = fields.PismeniByEstimate = true;
    fields.LitStranice[0] = "0";
    EXPECT_EQ(warning(), NoEstimate);
    fields.LitByEstimate = false;
    EXPECT_EQ(warning(), NoPages);
    fields.LitStranice[3] = "0,01";
    EXPECT_EQ(warning(), PagesAndWords);
    fields.OpsegRijeci = "-1";
    EXPECT_EQ(warning(), NoWrittenEstimate);
    fields.PismeniByEstimate = false;
    fields.OpsegStranice = "0";
    EXPECT_EQ(warning(), NoWrittenExtent);
    fields.OpsegStranice = "0,01";
    fields.KontaktniSati[0] = "1";
    EXPECT_EQ(warning(), NoSelfStudy);
    fields.KontaktniSati[0] = "0";
    EXPECT_EQ(warning(), NoWorkload);
    fields.SamostalniSati[2] = "1";
    EXPECT_EQ(warning(), NoWarning);
    fields.LitByEstimate = true;
    fields.LitProcjena[3] = "1";
    EXPECT_EQ(warning(), NoWarning);
}

TEST(WorkloadModel, WarnsOfPagesWithWordsInEitherMode)
{
    WorkloadFields fields;
    fields.LitStranice[0] = "100";
    fields.OpsegStranice = "10";
    fields.OpsegRijeci = "2000";
    fields = Recalculated(fields);
    EXPECT_EQ(fields.PismeniIzracun, "25,0");
    EXPECT_EQ(fields.Upozorenje, PagesAndWords);
    fields.PismeniByEstimate = true;
    fields.PismeniProcjena = "5";
    EXPECT_EQ(Recalculated(fields).Upozorenje, PagesAndWords);
}

TEST(WorkloadModel, WarnsOfNegativeEntriesAsOfMissingOnes)
{
    WorkloadFields fields;
    fields.LitByEstimate = fields.PismeniByEstimate = true;
    fields.LitProcjena[0] = "-5";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoEstimate);
    fields.LitProcjena[1] = "20";
    fields.PismeniProcjena = "-1";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWrittenEstimate);
    fields.PismeniProcjena = "1";
    fields.KontaktniSati[0] = "30";
    fields.SamostalniSati[0] = "0";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoSelfStudy);
}

TEST(WorkloadModel, WarnsOfNoEstimateOnlyWhereNoRowHasOne)
{
    WorkloadFields fields;
    fields.LitByEstimate = true;
    fields.LitProcjena[0] = "-30";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoEstimate);
    fields.LitProcjena[2] = "20";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWrittenExtent)
        << "one row is enough, although the sum is below 0";
}

TEST(WorkloadModel, IsContentWithOrdinaryEntries)
{
    WorkloadFields fields;
    fields.LitStranice[0] = "250";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWrittenExtent);
    fields.OpsegRijeci = "2000";
    fields.KontaktniSati[0] = "30";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoSelfStudy) << "words alone are an extent";
    fields.SamostalniSati[0] = "15";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWarning);
    fields.OpsegRijeci = "";
    fields.OpsegStranice = "10";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWarning) << "and pages alone";
    fields.OpsegStranice = "";
    fields.PismeniByEstimate = true;
    fields.PismeniProcjena = "12";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWarning);
}

TEST(WorkloadModel, ChecksContactTeachingAndTheTotalAsShown)
{
    WorkloadFields fields;
    fields.LitStranice[0] = "0,1";
    fields.OpsegStranice = "0,01";
    fields.KontaktniSati[0] = "0,04";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoWorkload);
    fields.KontaktniSati[0] = "0,05";
    EXPECT_EQ(Recalculated(fields).Upozorenje, NoSelfStudy);
}

// Random entries, compared with figures computed in whole numbers

/// A field's text and its value in ten-thousandths.
struct Entry
{
    std::string Text;
    std::int64_t Value = 0;
};

class RandomEntries
{
public:
    explicit RandomEntries(unsigned seed) : m_engine(seed) {}

    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_engine); }

    Entry Next()
    {
        if (Below(4) == 0)
            return {Junk(), 0};
        Entry entry;
        const int whole = Below(Below(2) == 0 ? 100 : 100000);
        const int decimals = Below(5);
        std::int64_t unit = 10000;
        entry.Value = whole * unit;
        entry.Text = std::to_string(whole);
        if (decimals > 0)
            entry.Text += Below(2) == 0 ? ',' : '.';
        for (int i = 0; i < decimals; ++i)
        {
            const int digit = Below(3) == 0 ? 5 : Below(10); // many halves
            unit /= 10;
            entry.Text += static_cast<char>('0' + digit);
            entry.Value += digit * unit;
        }
        if (Below(4) == 0)
        {
            entry.Text.insert(entry.Text.begin(), '-');
            entry.Value = -entry.Value;
        }
        if (Below(4) == 0)
            entry.Text = " " + entry.Text + "  ";
        return entry;
    }

    /// A text that is not a number.
    std::string Junk()
    {
        static const char* const junk[] = {"",  "   ", "abc", "1,2,3", "1.2.3", "--1",  "1-",  "0x1F",
                                           ",", "+",   "1e",  "12 3",  "žđ",    "\"7;", "inf", "nan"};
        return junk[Below(static_cast<int>(std::size(junk)))];
    }

    /// Up to hundreds of characters that occur in numbers, in any order.
    std::string NumberLike()
    {
        static const std::string characters = "0123456789999999.,+-eE ";
        std::string text;
        for (int length = Below(Below(10) == 0 ? 400 : 12); length > 0; --length)
            text += characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
        return text;
    }

private:
    std::mt19937 m_engine;
};

/// A quotient of whole numbers, rounded to a whole number, halves away from zero.
std::int64_t Rounded(std::int64_t numerator, std::int64_t denominator)
{
    const std::int64_t magnitude = (2 * std::abs(numerator) + denominator) / (2 * denominator);
    return numerator < 0 ? -magnitude : magnitude;
}

std::string Decimals(std::int64_t value, int decimals, const std::string& separator)
{
    const std::int64_t unit = decimals == 1 ? 10 : 100;
    std::string fraction = std::to_string(std::abs(value) % unit);
    fraction.insert(0, static_cast<std::size_t>(decimals) - fraction.size(), '0');
    return (value < 0 ? "-" : "") + std::to_string(std::abs(value) / unit) + separator + fraction;
}

template<std::size_t Size>
std::int64_t Fill(RandomEntries& random, std::array<std::string, Size>& fields,
                  std::array<std::int64_t, Size>* values = nullptr)
{
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < Size; ++i)
    {
        const Entry entry = random.Next();
        fields[i] = entry.Text;
        sum += entry.Value;
        if (values != nullptr)
            (*values)[i] = entry.Value;
    }
    return sum;
}

TEST(WorkloadModel, ShowsTheFiguresOfExactArithmeticForRandomEntries)
{
    constexpr std::int64_t entryUnit = 10000; // entries are counted in ten-thousandths of an hour
    constexpr std::int64_t norms[] = {7, 10, 20, 30};
    RandomEntries random(7);
    for (int round = 0; round < 20000; ++round)
    {
        const std::string separator = random.Below(2) == 0 ? "," : ".";
        const auto tenths = [&](std::int64_t value) { return Decimals(value, 1, separator); };
        const auto hundredths = [&](std::int64_t value) { return Decimals(value, 2, separator); };

        WorkloadFields fields;
        const std::int64_t contact = Rounded(Fill(random, fields.KontaktniSati) * 10, entryUnit);
        const std::int64_t selfStudy = Rounded(Fill(random, fields.SamostalniSati) * 10, entryUnit);
        std::array<std::int64_t, 4> pages{};
        Fill(random, fields.LitStranice, &pages);
        const std::int64_t estimated = Rounded(Fill(random, fields.LitProcjena) * 10, entryUnit);
        const Entry writtenPages = random.Next();
        const Entry writtenWords = random.Next();
        const Entry writtenEstimate = random.Next();
        fields.OpsegStranice = writtenPages.Text;
        fields.OpsegRijeci = writtenWords.Text;
        fields.PismeniProcjena = writtenEstimate.Text;
        const std::int64_t other = Rounded(Fill(random, fields.OstaleMetode) * 10, entryUnit);
        fields.LitByEstimate = random.Below(2) == 0;
        fields.PismeniByEstimate = random.Below(2) == 0;
        const int hours = 25 + random.Below(6);
        fields.SatiPoEcts = std::to_string(hours);

        std::int64_t norm = 0;
        for (std::size_t row = 0; row < pages.size(); ++row)
            norm += pages[row] * norms[row];
        const std::int64_t literature =
            fields.LitByEstimate ? estimated : Rounded(norm * 10, 100 * entryUnit);
        std::int64_t writtenNorm = 0;
        if (writtenPages.Value > 0)
            writtenNorm = Rounded(writtenPages.Value * 25, entryUnit);
        else if (writtenWords.Value > 0)
            writtenNorm = Rounded(writtenWords.Value * 10, 400 * entryUnit);
        const std::int64_t written =
            fields.PismeniByEstimate ? writtenEstimate.Value : writtenNorm * (entryUnit / 10);
        const std::int64_t nonContact = (literature + selfStudy + other) * (entryUnit / 10) + written;
        const std::int64_t total = contact * (entryUnit / 10) + nonContact;

        fields = Recalculated(fields, separator);
        ASSERT_EQ(fields.KontaktniUkupno, tenths(contact));
        ASSERT_EQ(fields.SamostalniUkupno, tenths(selfStudy));
        for (std::size_t row = 0; row < pages.size(); ++row)
            ASSERT_EQ(fields.LitIzracun[row], tenths(Rounded(pages[row] * norms[row] * 10, 100 * entryUnit)))
                << fields.LitStranice[row];
        ASSERT_EQ(fields.LitUkupno, tenths(literature));
        ASSERT_EQ(fields.PismeniIzracun, tenths(writtenNorm));
        ASSERT_EQ(fields.OstaleMetodeUkupno, tenths(other));
        ASSERT_EQ(fields.UkupnoOpter[ContactTotal], tenths(contact));
        ASSERT_EQ(fields.UkupnoOpter[NonContactTotal], tenths(Rounded(nonContact * 10, entryUnit)));
        ASSERT_EQ(fields.UkupnoOpter[WholeTotal], tenths(Rounded(total * 10, entryUnit)));
        ASSERT_EQ(fields.UkupnoOpter[EctsPoints], hundredths(Rounded(total * 100, hours * entryUnit)));
        ASSERT_EQ(fields.UkupnoOpter[WeeklyPoints],
                  hundredths(Rounded(total * 100 * 3, hours * entryUnit * 4)));
    }
}

TEST(WorkloadModel, SurvivesAnyText)
{
    RandomEntries random(8);
    const auto fill = [&](auto& fields)
    {
        for (std::string& field : fields)
            field = random.NumberLike();
    };
    for (int round = 0; round < 5000; ++round)
    {
        WorkloadFields fields;
        fill(fields.KontaktniSati);
        fill(fields.SamostalniSati);
        fill(fields.LitStranice);
        fill(fields.LitProcjena);
        fill(fields.OstaleMetode);
        fields.OpsegStranice = random.NumberLike();
        fields.OpsegRijeci = random.NumberLike();
        fields.PismeniProcjena = random.NumberLike();
        fields.LitByEstimate = random.Below(2) == 0;
        fields.PismeniByEstimate = random.Below(2) == 0;
        WorkloadModel model(fields, ",");
        model.ProposeSelfStudy(static_cast<std::size_t>(random.Below(3)));
        model.Recalculate();
        const WorkloadFields once = fields;
        model.Recalculate();
        EXPECT_EQ(fields.UkupnoOpter, once.UkupnoOpter) << "computing again changes nothing";
        for (const std::string& figure : fields.UkupnoOpter)
            ASSERT_EQ(figure.find_first_not_of("0123456789,-"), std::string::npos) << figure;
        ASSERT_FALSE(fields.Upozorenje.empty());
    }
}

} // namespace
