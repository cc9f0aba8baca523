#include "ects/EctsReport.h"

#include "data/Files.h"
#include "ects/WorkloadLabels.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace
{

// The report spells the first kind of literature in its own way.
constexpr std::array<std::string_view, LiteratureRows.size()> LiteratureLabels = {
    "Jednostavni tekst", LiteratureRows[1].Label, LiteratureRows[2].Label, LiteratureRows[3].Label};

std::string_view Method(bool byEstimate)
{
    return byEstimate ? EctsLabel::VlastitaProcjena : EctsLabel::Normativ;
}

/// Collects the lines of a report. A blank line separates sections.
class Report
{
public:
    void Row(const std::vector<std::string_view>& fields) { Lines.push_back(CsvRow(fields)); }

    void Section(std::string_view caption)
    {
        Row({});
        Row({caption});
    }

    std::vector<std::string> Lines;
};

void AddCourse(Report& report, const WorkloadFields& fields)
{
    report.Row({EctsCaption});
    report.Row({});
    report.Row({EctsLabel::NazivKolegija, fields.NazivKolegija});
    report.Row({"Nositelj(i)", fields.Nositelj});
    report.Row({EctsLabel::Komentar, fields.Komentar});
}

void AddContactTeaching(Report& report, const WorkloadFields& fields)
{
    report.Section(EctsGroup::Kontaktna);
    report.Row({EctsLabel::VrstaNastave, EctsLabel::KontaktniSati, EctsLabel::SamostalniSati});
    for (std::size_t row = 0; row < ContactRows.size(); ++row)
        report.Row({ContactRows[row].Label, fields.KontaktniSati[row], fields.SamostalniSati[row]});
    report.Row({EctsLabel::Ukupno, fields.KontaktniUkupno, fields.SamostalniUkupno});
}

void AddLiterature(Report& report, const WorkloadFields& fields)
{
    report.Section(EctsGroup::Literatura);
    report.Row({"Metoda", Method(fields.LitByEstimate)});
    report.Row(
        {EctsLabel::VrstaLiterature, EctsLabel::BrojStranica, EctsLabel::IzracunSati, EctsLabel::Procjena});
    for (std::size_t row = 0; row < LiteratureRows.size(); ++row)
        report.Row({LiteratureLabels[row], fields.LitStranice[row], fields.LitIzracun[row],
                    fields.LitProcjena[row]});
    report.Row({EctsLabel::Ukupno, "", fields.LitUkupno, ""});
}

void AddWrittenAssignment(Report& report, const WorkloadFields& fields)
{
    report.Section(EctsGroup::Pismeni);
    report.Row({"Metoda", Method(fields.PismeniByEstimate)});
    report.Row({"Stavka", "Vrijednost"});
    report.Row({EctsLabel::OpsegStranice, fields.OpsegStranice});
    report.Row({EctsLabel::OpsegRijeci, fields.OpsegRijeci});
    report.Row({EctsLabel::IzracunatoVrijeme, fields.PismeniIzracun});
    report.Row({EctsLabel::VlastitaProcjena, fields.PismeniProcjena});
}

void AddOtherMethods(Report& report, const WorkloadFields& fields)
{
    report.Section(EctsGroup::Ostale);
    report.Row({"Aktivnost", "Sati"});
    for (std::size_t i = 0; i < OtherMethods.size(); ++i)
        report.Row({OtherMethods[i].Label, fields.OstaleMetode[i]});
    report.Row({EctsLabel::Ukupno, fields.OstaleMetodeUkupno});
}

void AddTotals(Report& report, const WorkloadFields& fields)
{
    report.Section(EctsGroup::UkupnoOpter);
    report.Row({"Stavka", "Vrijednost"});
    for (std::size_t i = 0; i < TotalLabels.size(); ++i)
        report.Row({TotalLabels[i], fields.UkupnoOpter[i]});
}

} // namespace

std::vector<std::string> EctsReportLines(const WorkloadFields& fields)
{
    Report report;
    AddCourse(report, fields);
    AddContactTeaching(report, fields);
    AddLiterature(report, fields);
    AddWrittenAssignment(report, fields);
    AddOtherMethods(report, fields);
    AddTotals(report, fields);
    return report.Lines;
}

void WriteEctsReport(std::string_view path, const WorkloadFields& fields)
{
    TextFile file;
    for (const std::string& line : EctsReportLines(fields))
        file.AddLine(line);
    file.SaveAs(path);
}

std::string EctsReportFileName(std::string_view nazivKolegija)
{
    return std::string(TrimBlanks(nazivKolegija)) + ".csv";
}

std::string CsvField(std::string_view text)
{
    return QuotedIfAny(text, "\r;\n\"");
}

std::string CsvRow(const std::vector<std::string_view>& fields)
{
    std::vector<std::string> quoted;
    std::ranges::transform(fields, std::back_inserter(quoted), CsvField);
    return Joined(quoted, ";");
}
