#include "support/CourseEditor.h"
#include "support/ListWindow.h"
#include "support/ScreenPicture.h"

#include <wx/stopwatch.h>

#include <algorithm>
#include <cstddef>
#include <string>

// Texts that are wider than their column.

namespace
{

const std::string Wide = std::string(30, 'M') + " & kraj";
const std::string WideCourse = "1;" + Wide + ";1;0;2;3;obvezni;1;1";

class CutCells : public CourseEditor
{
protected:
    void OpenWide()
    {
        Catalogue catalogue = SmallCatalogue();
        catalogue.Kolegiji = {WideCourse, "2;Kratko;1;1;1;4;izborni;2;1"};
        catalogue.KolegijNastavnici.clear();
        catalogue.KolegijSmjerovi.clear();
        const MessageAnswers warned;
        Open(catalogue);
    }

    /// Moves the pointer to a cell in small steps, as a hand does.
    void PointAt(int row, int column)
    {
        const wxPoint place = MiddleOf(CellPlace(Kolegiji(), row, column));
        for (const int step : {4, 2, 0})
        {
            wxUIActionSimulator().MouseMove(place - wxPoint(step, 0));
            Settle();
        }
    }

    wxString Tip() { return InnerList(Kolegiji())->GetToolTipText(); }
};

TEST_F(CutCells, EndInThreeDots)
{
    OpenWide();
    const wxImage cell = ScreenPicture(CellPlace(Kolegiji(), 0, 1).Deflate(3));
    const auto isInk = [&](int x, int y) { return cell.GetGreen(x, y) < 128; };
    const auto hasInk = [&](int x, int top, int bottom)
    {
        for (int y = top; y < bottom; ++y)
            if (isInk(x, y))
                return true;
        return false;
    };
    int right = cell.GetWidth() - 1;
    while (right > 0 && !hasInk(right, 0, cell.GetHeight()))
        --right;
    ASSERT_GT(right, cell.GetWidth() / 2) << "the text fills its column";
    constexpr int dots = 5; // pixels, the smallest width of the three dots
    for (int x = right - dots; x <= right; ++x)
        EXPECT_FALSE(hasInk(x, 0, cell.GetHeight() / 2)) << "a letter's upper half";
}

TEST_F(CutCells, ShowTheWholeTextWhereThePointerIs)
{
    OpenWide();
    PointAt(1, 1);
    EXPECT_EQ(Tip(), "") << "a text that fits";

    const wxPoint pointer = MiddleOf(CellPlace(Kolegiji(), 0, 1));
    const wxRect below(pointer + wxPoint(30, 10), wxSize(100, 60));
    PointAt(0, 1);
    const auto isDifferent = [before = ScreenPicture(below), below]
    {
        const wxImage now = ScreenPicture(below);
        return !std::equal(now.GetData(), now.GetData() + std::ptrdiff_t{3} * below.width * below.height,
                           before.GetData());
    };
    EXPECT_EQ(Tip(), Wide);
    WaitUntil(isDifferent); // the tip is on the screen

    PointAt(0, 2);
    EXPECT_EQ(Tip(), "") << "another column";
    PointAt(0, 1);
    ASSERT_NE(Tip(), "");
    Type(Find<wxTextCtrl>(Window, "txtSearch"), "kratko");
    EXPECT_EQ(Tip(), "") << "the row is gone";
}

} // namespace
