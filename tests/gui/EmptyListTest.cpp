#include "support/EveryWindow.h"
#include "support/ListWindow.h"
#include "support/ScreenPicture.h"

#include <wx/image.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>

// The text of an empty list on the screen.

namespace
{

/// The area of a list's rows on the screen, without its edges, where the focus frame and the scroll bars are.
wxImage PictureOf(const ListView* list)
{
    wxRect place = InnerList(list)->GetScreenRect().Deflate(4);
    const int header = HeaderPlace(list, 0).height;
    place.y += header;
    place.height -= header + list->FromDIP(20);
    place.width -= list->FromDIP(20);
    return ScreenPicture(place);
}

int Brightness(const wxImage& picture, int x, int y)
{
    return (picture.GetRed(x, y) + picture.GetGreen(x, y) + picture.GetBlue(x, y)) / 3;
}

/// The part of a picture that differs clearly from its upper left corner; empty if none does.
wxRect InkIn(const wxImage& picture)
{
    constexpr int contrast = 60;
    const int ground = Brightness(picture, 0, 0);
    wxRect ink;
    for (int y = 0; y < picture.GetHeight(); ++y)
        for (int x = 0; x < picture.GetWidth(); ++x)
            if (std::abs(Brightness(picture, x, y) - ground) > contrast)
                ink.Union(wxRect(x, y, 1, 1));
    return ink;
}

bool AreEqual(const wxImage& a, const wxImage& b)
{
    const std::size_t bytes =
        static_cast<std::size_t>(a.GetWidth()) * static_cast<std::size_t>(a.GetHeight()) * 3;
    return a.GetSize() == b.GetSize() && std::equal(a.GetData(), a.GetData() + bytes, b.GetData());
}

/// Waits up to three seconds for a list's picture to meet a condition: GTK paints when it is ready.
wxImage PictureOnce(const ListView* list, const std::function<bool(const wxImage&)>& isWanted)
{
    wxImage picture = PictureOf(list);
    for (const wxStopWatch watch; !isWanted(picture) && watch.Time() < 3000; picture = PictureOf(list))
        Settle();
    return picture;
}

/// A list without rows shows a line of text: as wide as the text, in the middle.
void ExpectSays(const ListView* list, const char* text)
{
    EXPECT_EQ(list->RowCount(), 0);
    EXPECT_EQ(list->EmptyText(), wxString::FromUTF8(text));
    constexpr int tolerance = 30; // the edges of the letters, and the list's own edges
    const int width = list->GetTextExtent(wxString::FromUTF8(text)).x;
    const int middle = InnerList(list)->GetClientSize().x / 2;
    const auto isText = [&](const wxImage& picture)
    {
        const wxRect ink = InkIn(picture);
        return std::abs(ink.width - width) <= tolerance && std::abs(MiddleOf(ink).x - middle) <= tolerance;
    };
    const wxRect ink = InkIn(PictureOnce(list, isText));
    EXPECT_NEAR(ink.width, width, tolerance) << text;
    EXPECT_NEAR(MiddleOf(ink).x, middle, tolerance) << text;
    EXPECT_GT(ink.height, list->GetCharHeight() / 2) << text;
    EXPECT_LT(ink.height, 2 * list->GetCharHeight()) << text;
}

class ListsWithoutRows : public EveryWindowTest
{
};

using ListsWithRows = EveryWindowTest;

TEST_F(ListsWithoutRows, TheCourseListSaysThatNoCoursePassesTheFilters)
{
    OpenMain();
    auto* list = Find<ListView>(Main, "lvwKolegiji");
    auto* search = Find<wxTextCtrl>(Main, "txtSearch");
    const auto isFull = [](const wxImage& picture) { return InkIn(picture).width > picture.GetWidth() / 2; };
    const wxImage rows = PictureOnce(list, isFull);
    Type(search, "nema ga");
    ExpectSays(list, "Nijedan kolegij ne odgovara filtrima.");
    ClickAt(MiddleOf(InnerList(list)->GetScreenRect())); // the text is not a row
    EXPECT_EQ(list->SelectedRow(), -1);

    Main->SetSize(Main->GetSize() - wxSize(100, 0));
    Settle();
    ExpectSays(list, "Nijedan kolegij ne odgovara filtrima.");
    Main->SetSize(Main->GetSize() + wxSize(100, 0));

    PressKey(search, WXK_ESCAPE);
    Settle();
    const auto isAsBefore = [&](const wxImage& picture) { return AreEqual(picture, rows); };
    EXPECT_TRUE(isAsBefore(PictureOnce(list, isAsBefore))) << "the text is gone";
}

TEST_F(ListsWithoutRows, TheLecturersWindowAsksForALecturerFirst)
{
    InWindow(LecturerForm,
             [](wxTopLevelWindow& window)
             {
                 window.Raise();
                 Settle();
                 auto* list = Find<ListView>(&window, "lvwKolegiji");
                 ExpectSays(list, "Odaberite nastavnika.");
                 EXPECT_EQ(InkIn(PictureOf(Find<ListView>(&window, "lvwStat"))).width, 0) << "the sums";
                 auto* lecturers = Find<wxListBox>(&window, "lstNastavnici");
                 Click(lecturers, 0);
                 ASSERT_GT(list->RowCount(), 0);
                 Choose(Find<wxChoice>(&window, "cboProgram"), "BEV");
                 for (int i = 0; list->RowCount() > 0 && i < static_cast<int>(lecturers->GetCount()); ++i)
                     Click(lecturers, i);
                 ExpectSays(list, "Nema kolegija.");
             });
}

#ifdef _WIN32

TEST_F(ListsWithRows, AreNotErasedOnTheScreen)
{
    OpenMain();
    const auto* list = Find<ListView>(Main, "lvwStatistika");
    const wxImage rows = PictureOnce(list, [](const wxImage& picture) { return !InkIn(picture).IsEmpty(); });
    const HWND window = InnerList(list)->GetHWND();
    const HDC screen = GetDC(window);
    SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(screen), 0);
    ReleaseDC(window, screen);
    EXPECT_TRUE(AreEqual(PictureOf(list), rows));
}

#endif

} // namespace
