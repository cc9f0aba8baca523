#include "check/Repair.h"

#include "check/Check.h"
#include "data/CatalogueOnDisk.h"
#include "data/CatalogueSave.h"
#include "data/DatedCopies.h"
#include "data/Files.h"
#include "data/modData.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace Check
{

namespace
{

constexpr std::string_view IsOpen =
    "Katalog je otvoren u programu. Zatvorite Varlostudije i pokušajte ponovno.";
constexpr std::string_view IsPending =
    "Posljednje spremanje nije dovršeno. Pokrenite Varlostudije, koji će ga "
    "dovršiti, zatvorite ih i pokušajte ponovno.";

/// Those of a catalogue's files that exist, mended.
struct MendedCatalogue
{
    CatalogueOnDisk Files;
    std::map<std::string_view, std::string> Bytes; // by name
    Repair Result;
};

MendedCatalogue MendFiles(const std::string& folder)
{
    MendedCatalogue mended = {{folder, {}}, {}, {}};
    const Contents contents = ReadContents(folder);
    for (std::size_t i = 0; i < contents.size(); ++i)
    {
        if (!contents[i].Bytes)
            continue;
        const modData::TableLayout& layout = modData::AllTables()[i]->Layout();
        auto [bytes, changes, left] = Mend(*contents[i].Bytes, layout);
        mended.Files.Names.push_back(layout.FileName);
        mended.Bytes[layout.FileName] = std::move(bytes);
        std::ranges::move(changes, std::back_inserter(mended.Result.Changes));
        std::ranges::move(left, std::back_inserter(mended.Result.Left));
    }
    return mended;
}

void Save(const MendedCatalogue& mended)
{
    const CatalogueOnDisk& files = mended.Files;
    DatedCopies::KeepAnother(files); // unlike a save, a repair needs its copy
    CatalogueSave::Save(files,
                        [&](const std::string& set)
                        {
                            for (const auto& [name, bytes] : mended.Bytes)
                                WriteNewFile(PathIn(set, name), bytes, PathIn(files.Folder, name));
                        });
}

} // namespace

bool IsRepairable(const std::string& folder)
{
    return !MendFiles(folder).Result.Changes.empty();
}

Repair RepairCatalogue(const std::string& folder)
{
    const CatalogueLock lock(folder, LockKind::Saving); // a program that starts now waits
    if (System::Files.IsLockedByRunning(ToPath(folder)))
        return {{}, {}, IsOpen};
    if (CatalogueSave::CompleteSet(modData::FilesIn(folder)))
        return {{}, {}, IsPending};
    MendedCatalogue mended = MendFiles(folder);
    if (!mended.Result.Changes.empty())
        Save(mended);
    return std::move(mended.Result);
}

} // namespace Check
