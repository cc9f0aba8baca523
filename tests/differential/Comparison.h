#pragma once

#include "differential/RandomCatalogue.h"
#include "reference/Reference.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

class TestFolder;

/// What was asked, and what the program and the reference answered.
struct Difference
{
    std::string Question;
    std::string Program;
    std::string Reference;
};

/// Asks the program and the reference the same questions, and counts the answers, errors by their number.
class Comparison
{
public:
    Comparison(const TestFolder& folder, Chance& chance) : m_folder(folder), m_dice(chance) {}

    /// Loads the files of the data folder on both sides, compares all that can be asked of them, edits them
    /// and compares again, saves them, loads them anew. Gives the first difference, or nothing.
    std::optional<Difference> Run(const CatalogueFiles& files);

    /// Compares what the program's tables answer with what the reference's do.
    std::optional<Difference> Compare(const reference::Catalogue& catalogue);

    /// How often each kind of answer was given: "answer", or "error" with its number.
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
