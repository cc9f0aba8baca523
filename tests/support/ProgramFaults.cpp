#include "support/ProgramFaults.h"

#include "data/FileOperations.h"
#include "data/Files.h"
#include "data/System.h"
#include "data/modData.h"
#include "support/TestFolder.h"

#include <chrono>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

namespace fs = std::filesystem;

namespace
{

fs::path BaseFolder()
{
    return ToPath(System::EnvironmentVariable("LOCALAPPDATA"));
}

int Count = 0;
int LastOperation = 0; // 0: never

void CountOperation()
{
    if (++Count != LastOperation)
        return;
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), 137);
#else
    std::raise(SIGKILL);
#endif
}

/// An operation that ends the program when it is the last one.
template<auto Operation>
struct Counted;
template<typename... Arguments, std::error_code (*FileOperations::*Operation)(Arguments...)>
struct Counted<Operation>
{
    static std::error_code Run(Arguments... arguments)
    {
        const std::error_code result = (System::OwnFiles.*Operation)(arguments...);
        CountOperation();
        return result;
    }
};

void WaitFor(const fs::path& file)
{
    while (!fs::exists(file))
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

} // namespace

void CountOperations()
{
    const std::string number = System::EnvironmentVariable("VARLO_KILL_AFTER");
    if (number.empty())
        return;
    LastOperation = std::stoi(number);
    using Operations = FileOperations;
    System::Files.Open = Counted<&Operations::Open>::Run;
    System::Files.Write = Counted<&Operations::Write>::Run;
    System::Files.TakeAccess = Counted<&Operations::TakeAccess>::Run;
    System::Files.Flush = Counted<&Operations::Flush>::Run;
    System::Files.Rename = Counted<&Operations::Rename>::Run;
    System::Files.RemoveFile = Counted<&Operations::RemoveFile>::Run;
    System::Files.RemoveFolder = Counted<&Operations::RemoveFolder>::Run;
    System::Files.MakeFolder = Counted<&Operations::MakeFolder>::Run;
    System::Files.FlushFolder = Counted<&Operations::FlushFolder>::Run;
}

void WriteOperationCount()
{
    if (LastOperation > 0)
        WriteBytes(BaseFolder() / "operations", std::to_string(Count));
}

void EditTables()
{
    const std::string folder = System::EnvironmentVariable("VARLO_EDIT");
    if (folder.empty())
        return;
    for (modData::Table* table : modData::AllTables())
        *table = modData::LoadTable(ToText(BaseFolder() / ToPath(folder) / ToPath(table->Layout().FileName)),
                                    table->Layout());
}

void WaitForLeaveFile()
{
    const std::string name = System::EnvironmentVariable("VARLO_WAIT");
    if (name.empty())
        return;
    WriteBytes(BaseFolder() / ToPath("loaded." + name), "");
    WaitFor(BaseFolder() / "leave");
}

bool HoldsAFile()
{
    const std::string name = System::EnvironmentVariable("VARLO_HOLD");
#ifdef _WIN32
    if (name.empty())
        return false;
    const fs::path path = ToPath(PathIn(modData::GetDataFolder(), name));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    WriteBytes(BaseFolder() / "held", "");
    WaitFor(BaseFolder() / "release");
    CloseHandle(file);
#endif
    return !name.empty();
}
