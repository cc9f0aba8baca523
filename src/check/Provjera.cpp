#include "check/Provjera.h"

#include "check/Check.h"
#include "check/Repair.h"
#include "check/Report.h"
#include "data/CatalogueOnDisk.h"
#include "data/CatalogueSave.h"
#include "data/modData.h"

#include <algorithm>
#include <optional>

namespace Check
{

namespace
{

constexpr std::string_view Help =
    "varlostudiji-provjera [--popravi] [--cekaj] [MAPA]\n"
    "\n"
    "Provjerava katalog programa Varlostudiji u mapi MAPA, a bez nje mapu s podacima,\n"
    "onu u kojoj radi program. Sama provjera ništa ne mijenja. Ispisuje tri skupine\n"
    "nalaza, svaki s datotekom, retkom i stupcem; prvi redak datoteke je zaglavlje.\n"
    "\n"
    "  Greške    s njima se program ne može pokrenuti ili ne može spremiti promjene\n"
    "  Opasno    iduće bi spremanje to izgubilo ili pokvarilo, ili bi program završio\n"
    "            greškom\n"
    "  Napomene  možda je tako i zamišljeno\n"
    "\n"
    "  --popravi popravlja ono za što ne treba odluka: krajeve redaka LF, UTF-8 bez\n"
    "            oznake, oznaku UTF-8 ispred drugih slova, navodnike koje je tablični\n"
    "            kalkulator stavio oko cijelog polja i retke samih točaka-zareza. Prije\n"
    "            toga sprema kopiju u mapu kopije. Ne radi dok je katalog otvoren.\n"
    "  --cekaj   na kraju čeka tipku Enter\n"
    "  --help    ispisuje ovu pomoć\n"
    "\n"
    "Izlazni kod: 1 ako ima grešaka, 2 ako se mapa ne može pročitati ili popravak nije\n"
    "moguć, inače 0.\n";

struct Options
{
    std::string Folder;
    bool Help = false;
    bool Mend = false;
    bool Wait = false;
};

/// The parsed arguments; nothing if they are wrong.
std::optional<Options> OptionsOf(std::span<const std::string> arguments)
{
    Options options;
    for (const std::string& argument : arguments)
        if (argument == "--help" || argument == "-h")
            options.Help = true;
        else if (argument == "--popravi")
            options.Mend = true;
        else if (argument == "--cekaj")
            options.Wait = true;
        else if (argument.starts_with('-') || argument.empty() || !options.Folder.empty())
            return std::nullopt;
        else
            options.Folder = argument;
    if (options.Folder.empty())
        options.Folder = modData::DataFolderPath();
    return options;
}

/// The contents to check. If a save was interrupted, they are those that the next start of the program will
/// have.
Contents ContentsToCheck(const std::string& folder, const Terminal& terminal)
{
    const CatalogueLock lock(folder, LockKind::Saving); // no save may run while the files are read
    const std::optional<std::string> set = CatalogueSave::CompleteSet(modData::FilesIn(folder));
    if (set)
        terminal.Write("Posljednje spremanje nije dovršeno: provjeravaju se datoteke koje će program pri "
                       "pokretanju vratiti, iz mape " +
                       *set + "\n\n");
    return ReadContents(set.value_or(folder));
}

Findings CheckFolder(const std::string& folder, const Terminal& terminal)
{
    Findings findings = FindingsOf(ContentsToCheck(folder, terminal));
    terminal.Write(ReportOf(findings));
    return findings;
}

ExitCode CodeOf(const Findings& findings)
{
    return HasErrors(findings) ? Invalid : Valid;
}

void WriteChanges(std::string_view heading, const std::vector<Change>& changes, const Terminal& terminal)
{
    std::string text = std::string(heading) + ": ";
    text += changes.empty() ? "ništa" : std::to_string(changes.size());
    for (const Change& change : changes)
        text += "\n  " + LineOf(change.Place, change.Text);
    terminal.Write(text + "\n");
}

ExitCode RepairFolder(const std::string& folder, const Terminal& terminal)
{
    const Repair repair = RepairCatalogue(folder);
    if (!repair.Refusal.empty())
    {
        terminal.Write(std::string(repair.Refusal) + "\n");
        return NotDone;
    }
    WriteChanges("Popravljeno", repair.Changes, terminal);
    if (!repair.Left.empty())
        WriteChanges("Ostavljeno", repair.Left, terminal);
    if (!repair.Changes.empty())
        terminal.Write("Prijašnje su datoteke u mapi kopije.\n");
    terminal.Write("\n");
    return CodeOf(CheckFolder(folder, terminal));
}

/// Offers the repair after a check that found something to repair.
ExitCode CheckAndOffer(const Options& options, const Terminal& terminal)
{
    const Findings findings = CheckFolder(options.Folder, terminal);
    const bool isOffered =
        std::ranges::any_of(findings, &Finding::MayBeMended) && IsRepairable(options.Folder);
    if (isOffered && !options.Wait)
        terminal.Write("\nDio toga popravlja varlostudiji-provjera --popravi.\n");
    if (!isOffered || !options.Wait)
        return CodeOf(findings);
    terminal.Write("\nDio toga može se popraviti odmah. Za popravak upišite da i pritisnite Enter: ");
    return terminal.ReadLine() == "da" ? RepairFolder(options.Folder, terminal) : CodeOf(findings);
}

ExitCode Run(const Options& options, const Terminal& terminal)
{
    try
    {
        terminal.Write("Katalog: " + options.Folder + "\n\n");
        if (options.Mend)
            return RepairFolder(options.Folder, terminal);
        return CheckAndOffer(options, terminal);
    }
    catch (const RuntimeError& error)
    {
        terminal.Write(std::string(error.what()) + "\n");
        return NotDone;
    }
}

} // namespace

ExitCode Provjera(std::span<const std::string> arguments, const Terminal& terminal)
{
    const std::optional<Options> options = OptionsOf(arguments);
    if (!options || options->Help)
    {
        terminal.Write(Help);
        return options ? Valid : NotDone;
    }
    const ExitCode code = Run(*options, terminal);
    if (options->Wait)
    {
        terminal.Write("\nPritisnite Enter za kraj.");
        terminal.ReadLine();
    }
    return code;
}

} // namespace Check
