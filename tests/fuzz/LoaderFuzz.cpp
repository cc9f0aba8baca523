#include "data/Files.h"
#include "data/modData.h"
#include "fuzz/Fuzz.h"
#include "support/TestFolder.h"

#include <algorithm>

namespace
{

constexpr std::string_view Columns[] = {"ID", "Naziv", "Kratica"};
constexpr modData::TableLayout Layout = {"table.csv", Columns};

bool SameFields(const modData::Row& a, const modData::Row& b)
{
    if (a.FieldCount() != b.FieldCount())
        return false;
    for (std::size_t i = 0; i < a.FieldCount(); ++i)
        if (a.Field(i) != b.Field(i))
            return false;
    return true;
}

} // namespace

/// The input: a table's file. It is converted and loaded, saved, and reloaded.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TestFolder folder;
    static const std::string path = folder.PathOf("table.csv");
    WriteBytes(folder.Path() / "table.csv", TextOf(data, size));

    modData::Table loaded(Layout);
    if (!Succeeds(
            [&]
            {
                modData::NormalizeFileEncoding(path);
                loaded = modData::LoadTable(path, Layout);
            }))
        return 0;

    // Leading empty fields get no separators, so a row of only empty fields becomes a blank line, which is
    // skipped. Therefore only the second save must equal the first.
    const auto saveAndLoad = [&](const modData::Table& table)
    {
        modData::SaveTable(path, Layout.Header(), table);
        return modData::LoadTable(path, Layout);
    };
    modData::Table first(Layout);
    modData::Table second(Layout);
    const bool saved = Succeeds(
        [&]
        {
            first = saveAndLoad(loaded);
            second = saveAndLoad(first);
        });
    Promise(saved, "what was loaded can be saved and loaded again");
    Promise(first.RowCount() <= loaded.RowCount(), "a save makes no rows");
    Promise(std::ranges::equal(first, second, SameFields), "a saved table comes back as it was");
    return 0;
}
