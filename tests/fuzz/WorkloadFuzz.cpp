#include "ects/EctsReport.h"
#include "ects/WorkloadModel.h"
#include "fuzz/Fuzz.h"

#include <string>

namespace
{

/// Every field that the user types in, each from one line of the input.
std::vector<std::string*> TypedFields(WorkloadFields& fields)
{
    std::vector<std::string*> typed = {&fields.NazivKolegija, &fields.Nositelj,        &fields.Komentar,
                                       &fields.OpsegStranice, &fields.PismeniProcjena, &fields.SatiPoEcts};
    for (auto* group : {&fields.KontaktniSati, &fields.SamostalniSati})
        for (std::string& field : *group)
            typed.push_back(&field);
    for (auto* group : {&fields.LitStranice, &fields.LitProcjena})
        for (std::string& field : *group)
            typed.push_back(&field);
    for (std::string& field : fields.OstaleMetode)
        typed.push_back(&field);
    return typed;
}

} // namespace

/// The input: a byte of choices, then the texts of the calculator's fields, one per line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    WorkloadFields fields;
    fields.LitByEstimate = (data[0] & 1) != 0;
    fields.PismeniByEstimate = (data[0] & 2) != 0;
    const std::vector<std::string*> typed = TypedFields(fields);
    const std::vector<std::string_view> lines = PartsOf(TextOf(data + 1, size - 1), '\n', typed.size());
    for (std::size_t i = 0; i < typed.size(); ++i)
        *typed[i] = lines[i];

    WorkloadModel model(fields, (data[0] & 4) != 0 ? "." : ",");
    Succeeds(
        [&]
        {
            for (std::size_t row = 0; row < ContactRows.size(); ++row)
                model.ProposeSelfStudy(row);
            model.Recalculate();
            const std::array<std::string, TotalLabels.size()> totals = fields.UkupnoOpter;
            model.Recalculate();
            Promise(fields.UkupnoOpter == totals, "figures stay when nothing is typed");
            Promise(!fields.Upozorenje.empty(), "there is always a word on the entries");
        });
    Promise(EctsReportLines(fields).size() == 50, "a report has fifty lines");
    EctsReportFileName(fields.NazivKolegija);
    return 0;
}
