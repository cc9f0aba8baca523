#include "Workplace.h"

#include "data/Files.h"

#include <cstdlib>
#include <utility>

namespace
{

Workplace* Entered = nullptr;

std::string Utf8(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace

Workplace::Workplace(const CatalogueSize& size, const std::filesystem::path& folder)
    : m_fixed(size),
      m_folder(folder / size.Name)
{
    std::filesystem::remove_all(m_folder);
    std::filesystem::create_directories(ToPath(DataFolder()));
    GenerateCatalogue(size, UsualSeed, ToPath(DataFolder()));
}

std::string Workplace::DataFolder() const
{
    return PathOf("Varlostudiji");
}

std::string Workplace::PathOf(std::string_view name) const
{
    return Utf8(m_folder / ToPath(name));
}

void Workplace::Enter()
{
    if (Entered == this)
        return;
    ::setenv("LOCALAPPDATA", Utf8(m_folder).c_str(), 1);

    // The tables in use return to their own workplace.
    if (Entered != nullptr)
        for (modData::Table* table : modData::AllTables())
            Entered->m_tables.push_back(std::move(*table));
    if (m_tables.empty())
        modData::LoadAllTables();
    else
        for (std::size_t i = 0; i < m_tables.size(); ++i)
            *modData::AllTables()[i] = std::move(m_tables[i]);
    m_tables.clear();
    Entered = this;
}

reference::Catalogue& Workplace::Plain()
{
    if (!m_plainTables)
        m_plainTables = std::make_unique<reference::Catalogue>(reference::Load(DataFolder()));
    return *m_plainTables;
}
