#include "ui/main/SearchTexts.h"

#include "data/Text.h"
#include "data/modData.h"
#include "ui/main/CourseList.h"

#include <algorithm>
#include <string>

namespace
{

/// The title, the credits, the type and the lecturers, a blank before each.
std::string SearchTextOf(const Row& kolegij)
{
    constexpr std::size_t usualLength = 128;
    std::string text;
    text.reserve(usualLength);
    for (const Kolegij::Column column : {Kolegij::Naziv, Kolegij::ECTS, Kolegij::Tip})
        text.append(" ").append(kolegij.Field(column));
    text.append(" ").append(GetNastavniciForKolegijString(kolegij.Number(Kolegij::ID)));
    return UpperCase(text);
}

} // namespace

std::string_view SearchTexts::Of(const Row& kolegij)
{
    const std::array<std::uint64_t, 3> revisions = {
        modData::Kolegiji.Revision(), modData::KolegijNastavnici.Revision(), modData::Nastavnici.Revision()};
    if (revisions != Revisions)
    {
        Revisions = revisions;
        Texts.assign(modData::Kolegiji.RowCount(), {});
        Memory.release();
    }

    std::string_view& text = Texts.at(modData::Kolegiji.PositionOf(kolegij));
    if (text.empty())
    {
        const std::string made = SearchTextOf(kolegij);
        auto* kept = static_cast<char*>(Memory.allocate(made.size(), alignof(char)));
        std::ranges::copy(made, kept);
        text = {kept, made.size()};
    }
    return text;
}
