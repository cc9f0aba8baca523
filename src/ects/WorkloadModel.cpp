#include "ects/WorkloadModel.h"

#include "data/Errors.h"
#include "ects/FieldNumbers.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr double DefaultHoursPerEcts = 30;

constexpr std::string_view NoWarning = "Nema upozorenja.";

} // namespace

WorkloadModel::WorkloadModel(WorkloadFields& fields, std::string decimalSeparator)
    : Fields(fields),
      DecimalSeparator(std::move(decimalSeparator))
{
}

double WorkloadModel::ReadNumber(std::string_view field) const
{
    return ::ReadNumber(field, DecimalSeparator);
}

std::string WorkloadModel::FormatFixed(double value, std::string_view pattern) const
{
    return ::FormatFixed(value, pattern, DecimalSeparator);
}

double WorkloadModel::SumOf(const auto& fields) const
{
    HoursSum sum;
    for (const std::string& field : fields)
        sum.Add(ReadNumber(field));
    return sum.Value();
}

bool WorkloadModel::AnyAboveZero(const auto& fields) const
{
    return std::ranges::any_of(fields, [this](const std::string& field) { return ReadNumber(field) > 0; });
}

double WorkloadModel::SelfStudyFactor(std::size_t row)
{
    return row < ContactRows.size() ? ContactRows[row].SelfStudyFactor : 0;
}

void WorkloadModel::ProposeSelfStudy(std::size_t row)
{
    if (TrimBlanks(Fields.SamostalniSati[row]).empty())
        Fields.SamostalniSati[row] =
            FormatFixed(ReadNumber(Fields.KontaktniSati[row]) * SelfStudyFactor(row), OneDecimal);
}

double WorkloadModel::NormHours(std::size_t literatureRow) const
{
    return ReadNumber(Fields.LitStranice[literatureRow]) / 100 *
           LiteratureRows[literatureRow].HoursPer100Pages;
}

double WorkloadModel::LiteratureNormHours() const
{
    HoursSum hours;
    for (std::size_t row = 0; row < LiteratureRows.size(); ++row)
        hours.Add(NormHours(row));
    return hours.Value();
}

double WorkloadModel::LiteratureEstimateHours() const
{
    return SumOf(Fields.LitProcjena);
}

double WorkloadModel::LiteratureHours() const
{
    return Fields.LitByEstimate ? LiteratureEstimateHours() : LiteratureNormHours();
}

double WorkloadModel::WrittenNormHours() const
{
    const double pages = ReadNumber(Fields.OpsegStranice);
    const double words = ReadNumber(Fields.OpsegRijeci);
    if (pages > 0)
        return pages * HoursPerWrittenPage;
    return words > 0 ? words / WordsPerWrittenHour : 0;
}

double WorkloadModel::WrittenHours() const
{
    return ReadNumber(Fields.PismeniByEstimate ? Fields.PismeniProcjena : Fields.PismeniIzracun);
}

double WorkloadModel::HoursPerEcts() const
{
    if (Fields.SatiPoEcts.empty())
        return DefaultHoursPerEcts;
    if (!IsNumeric(Fields.SatiPoEcts))
        throw TypeMismatch(Fields.SatiPoEcts);
    return ReadNumber(Fields.SatiPoEcts);
}

void WorkloadModel::Recalculate()
{
    Fields.KontaktniUkupno = FormatFixed(SumOf(Fields.KontaktniSati), OneDecimal);
    Fields.SamostalniUkupno = FormatFixed(SumOf(Fields.SamostalniSati), OneDecimal);

    for (std::size_t row = 0; row < LiteratureRows.size(); ++row)
        Fields.LitIzracun[row] = FormatFixed(NormHours(row), OneDecimal);
    Fields.LitUkupno = FormatFixed(LiteratureHours(), OneDecimal);

    Fields.PismeniIzracun = FormatFixed(WrittenNormHours(), OneDecimal);
    Fields.OstaleMetodeUkupno = FormatFixed(SumOf(Fields.OstaleMetode), OneDecimal);

    WriteTotals();
    UpdateWarnings();
}

void WorkloadModel::WriteTotals()
{
    // The sums are those of the figures as shown, rounded.
    const double contact = ReadNumber(Fields.KontaktniUkupno);
    HoursSum hours;
    for (const double part : {ReadNumber(Fields.LitUkupno), ReadNumber(Fields.SamostalniUkupno),
                              WrittenHours(), ReadNumber(Fields.OstaleMetodeUkupno)})
        hours.Add(part);
    const double nonContact = hours.Value();
    hours.Add(contact);
    const double total = hours.Value();
    const double points = total / HoursPerEcts();

    Fields.UkupnoOpter[ContactTotal] = FormatFixed(contact, OneDecimal);
    Fields.UkupnoOpter[NonContactTotal] = FormatFixed(nonContact, OneDecimal);
    Fields.UkupnoOpter[WholeTotal] = FormatFixed(total, OneDecimal);
    Fields.UkupnoOpter[EctsPoints] = FormatFixed(points, TwoDecimals);
    Fields.UkupnoOpter[WeeklyPoints] = FormatFixed(points * WeeklyShare, TwoDecimals);
}

void WorkloadModel::UpdateWarnings()
{
    const std::string_view warning = FirstWarning();
    Fields.Upozorenje = warning.empty() ? NoWarning : warning;
    Fields.BojaUpozorenja = warning.empty() ? ListColours::Blue : ListColours::Red;
}

std::string_view WorkloadModel::FirstWarning() const
{
    const auto aboveZero = [this](const std::string& field) { return ReadNumber(field) > 0; };
    const bool pages = aboveZero(Fields.OpsegStranice);
    const bool words = aboveZero(Fields.OpsegRijeci);

    if (Fields.LitByEstimate && !AnyAboveZero(Fields.LitProcjena))
        return "Odabrana je vlastita procjena literature, ali procjena nije unesena.";
    if (!Fields.LitByEstimate && !AnyAboveZero(Fields.LitStranice))
        return "Odabran je normativ literature, ali broj stranica nije unesen.";
    if (pages && words)
        return "Za pismeni zadatak unesite ili stranice ili riječi, ne oboje.";
    if (Fields.PismeniByEstimate && !aboveZero(Fields.PismeniProcjena))
        return "Odabrana je vlastita procjena pismenog zadatka, ali procjena nije unesena.";
    if (!Fields.PismeniByEstimate && !pages && !words)
        return "Odabran je normativ pismenog zadatka, ali nije unesen opseg.";
    if (aboveZero(Fields.KontaktniUkupno) && !aboveZero(Fields.SamostalniUkupno))
        return "Unesena je kontaktna nastava, ali samostalni sati nisu uneseni.";
    if (!aboveZero(Fields.UkupnoOpter[WholeTotal]))
        return "Ukupno opterećenje nije uneseno.";
    return {};
}
