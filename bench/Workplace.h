#pragma once

#include "Generator.h"

#include "data/modData.h"
#include "reference/Reference.h"

#include <filesystem>
#include <string>

/// A generated catalogue in its own folder. There may be several: the program works on the one that was
/// entered last.
class Workplace
{
public:
    /// Generates a catalogue below the folder. @throws FileError
    Workplace(const CatalogueSize& size, const std::filesystem::path& folder);

    const CatalogueSize& Size() const { return m_fixed; }

    /// The data folder, as UTF-8.
    std::string DataFolder() const;

    /// The path of a file that is not a table, as UTF-8.
    std::string PathOf(std::string_view name) const;

    /// Makes this catalogue the program's: its data folder and its loaded tables.
    void Enter();

    /// The reference's catalogue, loaded when first needed.
    reference::Catalogue& Plain();

private:
    CatalogueSize m_fixed;
    std::filesystem::path m_folder;
    std::vector<modData::Table> m_tables; // while another workplace is in use
    std::unique_ptr<reference::Catalogue> m_plainTables;
};
