#include "support/DarkDesktop.h"
#include "support/EveryWindow.h"
#include "support/ListWindow.h"
#include "support/ScreenPicture.h"

#include <wx/stattext.h>
#include <wx/stopwatch.h>

#include <algorithm>
#include <cmath>

// Coloured texts on a dark background, on the screen.

namespace
{

double Linear(unsigned char part)
{
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const wxImage& picture, int x, int y)
{
    return 0.2126 * Linear(picture.GetRed(x, y)) + 0.7152 * Linear(picture.GetGreen(x, y)) +
           0.0722 * Linear(picture.GetBlue(x, y));
}

/// The contrast between the lightest and the darkest point of a part of the screen: 1 if they are equal, 21
/// for black and white. Readable text needs 4.5.
double ContrastAt(const wxRect& place)
{
    const wxImage picture = ScreenPicture(place);
    double least = 1;
    double most = 0;
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x)
        {
            least = std::min(least, Luminance(picture, x, y));
            most = std::max(most, Luminance(picture, x, y));
        }
    return (most + 0.05) / (least + 0.05);
}

void ExpectReadable(const wxRect& place, const char* what)
{
    constexpr double readable = 4.5;
    for (const wxStopWatch watch; ContrastAt(place) < readable && watch.Time() < 2000;)
        Settle();
    EXPECT_GE(ContrastAt(place), readable) << what;
}

void ExpectCellReadable(const ListView* list, int row, int column, const char* what)
{
    ExpectReadable(CellPlace(list, row, column).Deflate(3), what);
}

class DarkWindows : public EveryWindowTest
{
protected:
    DarkDesktop Dark; // before any window
};

TEST_F(DarkWindows, ShowElectivesAndTooManyCreditsReadably)
{
    OpenMain();
    auto* courses = Find<ListView>(Main, "lvwKolegiji");
    const std::vector<std::string> kinds = ColumnTexts(courses, 6);
    const auto elective = static_cast<int>(std::ranges::find(kinds, "izborni") - kinds.begin());
    ExpectCellReadable(courses, elective, 1, "a blue text");
    EXPECT_EQ(courses->CellColour(elective, 1), wxColour(0, 0, 255)) << "the colour that the list has";
    courses->SelectRow(elective);
    ExpectCellReadable(courses, elective, 1, "the same, selected");
    ExpectCellReadable(Find<ListView>(Main, "lvwStatistika"), 0, 5, "a red number");
    ExpectCellReadable(courses, 0, 1, "a text in the usual colour");
}

TEST_F(DarkWindows, ShowLinksAndWarningsReadably)
{
    InWindow(AboutForm, [](wxTopLevelWindow& window)
             { ExpectReadable(Find<wxStaticText>(&window, "lblWeb")->GetScreenRect(), "a link"); });
    InWindow(CalculatorForm, [](wxTopLevelWindow& window)
             { ExpectReadable(Find<wxStaticText>(&window, "lblUpozorenje")->GetScreenRect(), "a warning"); });
}

} // namespace
