#include "check/Provjera.h"
#include "check/Console.h"
#include "data/CatalogueOnDisk.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <memory>
#include <vector>

namespace
{

struct Outcome
{
    Check::ExitCode Code;
    std::string Output;
    int LinesRead = 0;
};

/// Runs the program; every line that it reads is the same.
Outcome Provjera(const std::vector<std::string>& arguments, const std::string& line = "")
{
    Outcome run = {};
    const auto readLine = [&]
    {
        ++run.LinesRead;
        return line;
    };
    run.Code = Check::Provjera(arguments, {[&](std::string_view text) { run.Output += text; }, readLine});
    return run;
}

std::map<std::string, std::string> FilesOf(const std::filesystem::path& folder)
{
    std::map<std::string, std::string> files;
    for (const std::filesystem::directory_entry& entry :
         std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files[entry.path().lexically_relative(folder).string()] = ReadBytes(entry.path());
    return files;
}

/// The program keeps its lock on the folder that it has loaded last. The lock is by the folder's number in
/// the file system; if the folder is removed, another test's folder may get that number. So these tests load
/// from a folder that stays.
class ProvjeraRuns : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        m_loaded = std::make_unique<TestFolder>();
        SmallCatalogue().WriteTo(m_loaded->Data());
        modData::LoadAllTables();
    }

    static void TearDownTestSuite() { m_loaded.reset(); }

private:
    static inline std::unique_ptr<TestFolder> m_loaded;
};

TEST_F(ProvjeraRuns, AValidCatalogueEndsWithZero)
{
    const TestFolder folder;
    SmallCatalogue().WriteTo(folder.Data());
    const Outcome run = Provjera({});
    EXPECT_EQ(run.Code, Check::Valid);
    EXPECT_EQ(run.Output, "Katalog: " + folder.DataPath("").substr(0, folder.DataPath("").size() - 1) +
                              "\n\n"
                              "Greške: nema\n"
                              "Opasno: nema\n"
                              "Napomene: 1 (možda je tako i zamišljeno)\n"
                              "  db_kolegij.csv, redak 6: kolegij nema smjera: \"Kolegij bez smjera\"\n");
}

TEST_F(ProvjeraRuns, AnInvalidCatalogueEndsWithOneAndStaysAsItIs)
{
    const TestFolder folder;
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji.push_back("9;X;X;x");
    catalogue.WriteTo(folder.Data());
    std::filesystem::remove(folder.Data() / "db_zavod.csv");
    WriteBytes(folder.Data() / "db_smjer.csv", "\xEF\xBB\xBF" + ReadBytes(folder.Data() / "db_smjer.csv"));
    const auto before = FilesOf(folder.Data());
    EXPECT_EQ(Provjera({folder.PathOf("Varlostudiji")}).Code, Check::Invalid);
    EXPECT_EQ(FilesOf(folder.Data()), before);
}

TEST_F(ProvjeraRuns, AFolderThatCannotBeReadEndsWithTwoAndIsNotMade)
{
    const TestFolder folder;
    std::filesystem::remove(folder.Data());
    const Outcome run = Provjera({});
    EXPECT_EQ(run.Code, Check::NotDone);
    EXPECT_TRUE(run.Output.find("\nDatoteka ili mapa nije pronađena: ") != std::string::npos) << run.Output;
    EXPECT_FALSE(std::filesystem::exists(folder.Data()));

    WriteBytes(folder.Path() / "file", "");
    EXPECT_EQ(Provjera({folder.PathOf("file")}).Code, Check::NotDone);
}

TEST_F(ProvjeraRuns, HelpIsShownOnRequestAndForWrongArguments)
{
    const Outcome help = Provjera({"--help"});
    EXPECT_EQ(help.Code, Check::Valid);
    EXPECT_EQ(help.Output, R"(varlostudiji-provjera [--popravi] [--cekaj] [MAPA]

Provjerava katalog programa Varlostudiji u mapi MAPA, a bez nje mapu s podacima,
onu u kojoj radi program. Sama provjera ništa ne mijenja. Ispisuje tri skupine
nalaza, svaki s datotekom, retkom i stupcem; prvi redak datoteke je zaglavlje.

  Greške    s njima se program ne može pokrenuti ili ne može spremiti promjene
  Opasno    iduće bi spremanje to izgubilo ili pokvarilo, ili bi program završio
            greškom
  Napomene  možda je tako i zamišljeno

  --popravi popravlja ono za što ne treba odluka: krajeve redaka LF, UTF-8 bez
            oznake, oznaku UTF-8 ispred drugih slova, navodnike koje je tablični
            kalkulator stavio oko cijelog polja i retke samih točaka-zareza. Prije
            toga sprema kopiju u mapu kopije. Ne radi dok je katalog otvoren.
  --cekaj   na kraju čeka tipku Enter
  --help    ispisuje ovu pomoć

Izlazni kod: 1 ako ima grešaka, 2 ako se mapa ne može pročitati ili popravak nije
moguć, inače 0.
)");
    EXPECT_EQ(Provjera({"-h"}).Output, help.Output);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"--sve"}, {"a", "b"}, {""}, {"--help", "-x"}})
    {
        const Outcome run = Provjera(wrong);
        EXPECT_EQ(run.Code, Check::NotDone);
        EXPECT_EQ(run.Output, help.Output);
    }
}

TEST_F(ProvjeraRuns, AtItsEndItWaitsForEnterIfAsked)
{
    const TestFolder folder;
    SmallCatalogue().WriteTo(folder.Data());
    EXPECT_EQ(Provjera({}).LinesRead, 0);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--cekaj"},
                                                      {"--cekaj", folder.PathOf("Varlostudiji")},
                                                      {"--cekaj", "missing"}})
    {
        const Outcome run = Provjera(arguments);
        EXPECT_EQ(run.LinesRead, 1);
        EXPECT_TRUE(run.Output.ends_with("\nPritisnite Enter za kraj.")) << run.Output;
    }
}

// --- The repair ---

/// A catalogue with lone LFs in one file and a spreadsheet's quotes in another.
void WriteBroken(const TestFolder& folder)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi.push_back("3;\"Lov \"\"i\"\" ribolov\";L");
    catalogue.WriteTo(folder.Data());
    const std::filesystem::path file = folder.Data() / "db_studij.csv";
    std::string bytes = ReadBytes(file);
    std::erase(bytes, '\r');
    WriteBytes(file, bytes);
}

void ExpectRefused(const TestFolder& folder, std::string_view text)
{
    const auto before = FilesOf(folder.Data());
    const Outcome run = Provjera({"--popravi"});
    EXPECT_EQ(run.Code, Check::NotDone);
    EXPECT_TRUE(run.Output.ends_with("\n\n" + std::string(text) + "\n")) << run.Output;
    EXPECT_EQ(FilesOf(folder.Data()), before);
}

TEST_F(ProvjeraRuns, ARepairMendsKeepsACopyAndReportsWhatItDid)
{
    const TestFolder folder;
    WriteBroken(folder);
    const auto before = FilesOf(folder.Data());
    EXPECT_TRUE(Provjera({}).Output.ends_with("\n\nDio toga popravlja varlostudiji-provjera --popravi.\n"));

    const Outcome run = Provjera({"--popravi"});
    EXPECT_EQ(run.Code, Check::Valid);
    EXPECT_TRUE(run.Output.find(
                    "\nPopravljeno: 2\n"
                    "  db_zavod.csv, redak 4, Naziv: uklonjeni su navodnici: \"\"Lov \"\"i\"\" ribolov\"\" "
                    "je sada \"Lov \"i\" ribolov\"\n"
                    "  db_studij.csv, redak 1: krajevi redaka LF zamijenjeni su s CR LF (takvih: 4)\n"
                    "Prijašnje su datoteke u mapi kopije.\n\n"
                    "Greške: nema\nOpasno: nema\n") != std::string::npos)
        << run.Output;
    EXPECT_EQ(ReadBytes(folder.Data() / "db_studij.csv"),
              "ID;Naziv;Kratica;Razina\r\n1;Lovstvo;LOR;Preddiplomski\r\n2;Bevanda;BEV;Preddiplomski\r\n"
              "3;Lovstvo;LOR;Diplomski\r\n");
    EXPECT_TRUE(ReadBytes(folder.Data() / "db_zavod.csv").ends_with("\r\n3;Lov \"i\" ribolov;L\r\n"));
    const auto copies = EntriesOf(folder.Data() / "kopije");
    ASSERT_FALSE(copies.empty());
    for (const std::string& copy : copies)
        EXPECT_EQ(FilesOf(folder.Data() / "kopije" / copy), before);

    const auto after = FilesOf(folder.Data());
    EXPECT_TRUE(Provjera({"--popravi"}).Output.find("\nPopravljeno: ništa\n\n") != std::string::npos);
    EXPECT_EQ(FilesOf(folder.Data()), after);
    EXPECT_EQ(EntriesOf(folder.Data() / "kopije"), copies);
}

TEST_F(ProvjeraRuns, ARepairLeavesMissingAndEmptyFilesAsTheyAre)
{
    const TestFolder folder;
    WriteBroken(folder);
    std::filesystem::remove(folder.Data() / "db_nastavnici.csv");
    WriteBytes(folder.Data() / "db_smjer.csv", "");
    EXPECT_EQ(Provjera({"--popravi"}).Code, Check::Invalid);
    EXPECT_FALSE(std::filesystem::exists(folder.Data() / "db_nastavnici.csv"));
    EXPECT_EQ(ReadBytes(folder.Data() / "db_smjer.csv"), "");
    EXPECT_TRUE(ReadBytes(folder.Data() / "db_studij.csv").starts_with("ID;Naziv;Kratica;Razina\r\n"));
}

TEST_F(ProvjeraRuns, ARepairIsRefusedWhileTheProgramHasTheCatalogueOpen)
{
    const TestFolder folder;
    WriteBroken(folder);
    const CatalogueLock running(folder.PathOf("Varlostudiji"), LockKind::Running);
    ASSERT_TRUE(running.IsHeld());
    ExpectRefused(folder, "Katalog je otvoren u programu. Zatvorite Varlostudije i pokušajte ponovno.");
    EXPECT_EQ(Provjera({}).Code, Check::Invalid) << "a check goes on";
}

/// Makes a complete set of an interrupted save: the small catalogue.
void InterruptASave(const TestFolder& folder)
{
    const std::filesystem::path set = folder.Data() / "spremanje";
    std::filesystem::create_directory(set);
    SmallCatalogue().WriteTo(set);
    WriteBytes(set / "gotovo", "2026-11-21_143005\r\n");
}

TEST_F(ProvjeraRuns, ARepairIsRefusedWhileASaveIsPending)
{
    const TestFolder folder;
    WriteBroken(folder);
    InterruptASave(folder);
    ExpectRefused(
        folder, "Posljednje spremanje nije dovršeno. Pokrenite Varlostudije, koji će ga dovršiti, zatvorite "
                "ih i pokušajte ponovno.");
}

TEST_F(ProvjeraRuns, APendingSetIsCheckedInsteadOfTheFiles)
{
    const TestFolder folder;
    WriteBroken(folder);
    EXPECT_EQ(Provjera({}).Code, Check::Invalid);
    InterruptASave(folder);
    const auto before = FilesOf(folder.Data());
    const Outcome run = Provjera({});
    EXPECT_EQ(run.Code, Check::Valid);
    EXPECT_TRUE(run.Output.find(
                    "\n\nPosljednje spremanje nije dovršeno: provjeravaju se datoteke koje će program pri "
                    "pokretanju vratiti, iz mape " +
                    folder.DataPath("spremanje") + "\n\nGreške: nema\n") != std::string::npos)
        << run.Output;
    EXPECT_EQ(FilesOf(folder.Data()), before);
}

TEST_F(ProvjeraRuns, ARepairThatCannotKeepACopyChangesNothing)
{
    const TestFolder folder;
    WriteBroken(folder);
    WriteBytes(folder.Data() / "kopije", "");
    const auto before = FilesOf(folder.Data());
    EXPECT_EQ(Provjera({"--popravi"}).Code, Check::NotDone);
    EXPECT_EQ(FilesOf(folder.Data()), before);
}

TEST_F(ProvjeraRuns, ARepairIsOfferedIfItWaits)
{
    const TestFolder folder;
    WriteBroken(folder);
    const auto before = FilesOf(folder.Data());
    EXPECT_EQ(Provjera({"--cekaj"}, "ne").Code, Check::Invalid);
    EXPECT_EQ(FilesOf(folder.Data()), before);

    const Outcome run = Provjera({"--cekaj"}, "da");
    EXPECT_EQ(run.Code, Check::Valid);
    EXPECT_EQ(run.LinesRead, 2);
    EXPECT_TRUE(run.Output.find("Za popravak upišite da i pritisnite Enter: Popravljeno: 2\n") !=
                std::string::npos)
        << run.Output;
    EXPECT_EQ(Provjera({"--cekaj"}, "da").LinesRead, 1) << "nothing is left to mend";
}

TEST(ConsoleInput, ALineEndsAtItsLineEndOrWithTheInput)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "input", "da\r\n\nx y");
    ASSERT_NE(std::freopen(folder.PathOf("input").c_str(), "rb", stdin), nullptr);
    for (const char* line : {"da", "", "x y", "", ""})
        EXPECT_EQ(Console::ReadLine(), line);
#ifdef _WIN32
    constexpr const char* nothing = "NUL";
#else
    constexpr const char* nothing = "/dev/null";
#endif
    ASSERT_NE(std::freopen(nothing, "rb", stdin), nullptr) << "the folder could not be removed otherwise";
}

} // namespace
