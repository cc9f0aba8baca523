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
    : m_fields(fields),
      m_decimalSeparator(std::move(decimalSeparator))
{
}

double WorkloadModel::ReadNumber(std::string_view field) const
{
    return ::ReadNumber(field, m_decimalSeparator);
}

std::string WorkloadModel::FormatFixed(double value, std::string_view pattern) const
{
    return ::FormatFixed(value, pattern, m_decimalSeparator);
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
    if (TrimBlanks(m_fields.SamostalniSati[row]).empty())
        m_fields.SamostalniSati[row] =
            FormatFixed(ReadNumber(m_fields.KontaktniSati[row]) * SelfStudyFactor(row), OneDecimal);
}

double WorkloadModel::NormHours(std::size_t literatureRow) const
{
    return ReadNumber(m_fields.LitStranice[literatureRow]) / 100 *
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
    return SumOf(m_fields.LitProcjena);
}

double WorkloadModel::LiteratureHours() const
{
    return m_fields.LitByEstimate ? LiteratureEstimateHours() : LiteratureNormHours();
}

double WorkloadModel::WrittenNormHours() const
{
    const double pages = ReadNumber(m_fields.OpsegStranice);
    const double words = ReadNumber(m_fields.OpsegRijeci);
    if (pages > 0)
        return pages * HoursPerWrittenPage;
    return words > 0 ? words / WordsPerWrittenHour : 0;
}

double WorkloadModel::WrittenHours() const
{
    return ReadNumber(m_fields.PismeniByEstimate ? m_fields.PismeniProcjena : m_fields.PismeniIzracun);
}

double WorkloadModel::HoursPerEcts() const
{
    if (m_fields.SatiPoEcts.empty())
        return DefaultHoursPerEcts;
    if (!IsNumeric(m_fields.SatiPoEcts))
        throw TypeMismatch(m_fields.SatiPoEcts);
    return ReadNumber(m_fields.SatiPoEcts);
}

void WorkloadModel::Recalculate()
{
    m_fields.KontaktniUkupno = FormatFixed(SumOf(m_fields.KontaktniSati), OneDecimal);
    m_fields.SamostalniUkupno = FormatFixed(SumOf(m_fields.SamostalniSati), OneDecimal);

    for (std::size_t row = 0; row < LiteratureRows.size(); ++row)
        m_fields.LitIzracun[row] = FormatFixed(NormHours(row), OneDecimal);
    m_fields.LitUkupno = FormatFixed(LiteratureHours(), OneDecimal);

    m_fields.PismeniIzracun = FormatFixed(WrittenNormHours(), OneDecimal);
    m_fields.OstaleMetodeUkupno = FormatFixed(SumOf(m_fields.OstaleMetode), OneDecimal);

    WriteTotals();
    UpdateWarnings();
}

void WorkloadModel::WriteTotals()
{
    // Adds the figures as shown, that is, rounded.
    const double contact = ReadNumber(m_fields.KontaktniUkupno);
    HoursSum hours;
    for (const double part : {ReadNumber(m_fields.LitUkupno), ReadNumber(m_fields.SamostalniUkupno),
                              WrittenHours(), ReadNumber(m_fields.OstaleMetodeUkupno)})
        hours.Add(part);
    const double nonContact = hours.Value();
    hours.Add(contact);
    const double total = hours.Value();
    const double points = total / HoursPerEcts();

    m_fields.UkupnoOpter[ContactTotal] = FormatFixed(contact, OneDecimal);
    m_fields.UkupnoOpter[NonContactTotal] = FormatFixed(nonContact, OneDecimal);
    m_fields.UkupnoOpter[WholeTotal] = FormatFixed(total, OneDecimal);
    m_fields.UkupnoOpter[EctsPoints] = FormatFixed(points, TwoDecimals);
    m_fields.UkupnoOpter[WeeklyPoints] = FormatFixed(points * WeeklyShare, TwoDecimals);
}

void WorkloadModel::UpdateWarnings()
{
    const std::string_view warning = FirstWarning();
    m_fields.Upozorenje = warning.empty() ? NoWarning : warning;
    m_fields.BojaUpozorenja = warning.empty() ? TextColours::Blue : TextColours::Red;
}

std::string_view WorkloadModel::FirstWarning() const
{
    const auto aboveZero = [this](const std::string& field) { return ReadNumber(field) > 0; };
    const bool pages = aboveZero(m_fields.OpsegStranice);
    const bool words = aboveZero(m_fields.OpsegRijeci);

    if (m_fields.LitByEstimate && !AnyAboveZero(m_fields.LitProcjena))
        return "Odabrana je vlastita procjena literature, ali procjena nije unesena.";
    if (!m_fields.LitByEstimate && !AnyAboveZero(m_fields.LitStranice))
        return "Odabran je normativ literature, ali broj stranica nije unesen.";
    if (pages && words)
        return "Za pismeni zadatak unesite ili stranice ili riječi, ne oboje.";
    if (m_fields.PismeniByEstimate && !aboveZero(m_fields.PismeniProcjena))
        return "Odabrana je vlastita procjena pismenog zadatka, ali procjena nije unesena.";
    if (!m_fields.PismeniByEstimate && !pages && !words)
        return "Odabran je normativ pismenog zadatka, ali nije unesen opseg.";
    if (aboveZero(m_fields.KontaktniUkupno) && !aboveZero(m_fields.SamostalniUkupno))
        return "Unesena je kontaktna nastava, ali samostalni sati nisu uneseni.";
    if (!aboveZero(m_fields.UkupnoOpter[WholeTotal]))
        return "Ukupno opterećenje nije uneseno.";
    return {};
}
