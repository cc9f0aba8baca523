#pragma once

#include "differential/RandomCatalogue.h"
#include "reference/Reference.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

class TestFolder;

/// A question, and the different answers of the program and of the reference.
struct Difference
{
    std::string Question;
    std::string Program;
    std::string Reference;
};

/// Asks the program and the reference the same questions. Counts the answers, and errors by number.
class Comparison
{
public:
    Comparison(const TestFolder& folder, Chance& chance) : m_folder(folder), m_dice(chance) {}

    /// Loads the files of the data folder on both sides, compares everything, edits them and compares again,
    /// then saves and reloads them. Returns the first difference, or nothing.
    std::optional<Difference> Run(const CatalogueFiles& files);

    /// Compares the answers from the program's tables with those from the reference's.
    std::optional<Difference> Compare(const reference::Catalogue& catalogue);

    /// The number of answers of each kind: "answer", or "error" with its number.
    const std::map<std::string, std::size_t>& Answers() const { return m_counts; }

private:
    template<typename Program, typename Plain>
    bool Ask(const std::string& question, const Program& program, const Plain& plain);

    bool LoadBoth(const CatalogueFiles& files, reference::Catalogue& catalogue);
    bool CompareAll(const reference::Catalogue& catalogue);
    bool CompareTables(const reference::Catalogue& catalogue);
    bool CompareLookups(const reference::Catalogue& catalogue);
    bool CompareMainWindow(const reference::Catalogue& catalogue);
    bool CompareLists(const CourseFilter& filter, const std::string& razina,
                      const reference::Catalogue& catalogue);
    bool CompareLoad(const reference::Catalogue& catalogue);
    bool CompareLoadOf(std::int32_t id, const reference::Catalogue& catalogue);
    bool CompareExports(const reference::Catalogue& catalogue);
    bool CompareSaved(reference::Catalogue& catalogue);
    bool EditBoth(reference::Catalogue& catalogue);

    const TestFolder& m_folder;
    Chance& m_dice;
    std::map<std::string, std::size_t> m_counts;
    std::optional<Difference> m_found;
};
