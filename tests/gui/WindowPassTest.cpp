// One pass over every window: the names for screen readers, and whether everything can be read.

#include "support/AccessibleName.h"
#include "support/EveryWindow.h"
#include "support/ListWindow.h"
#include "support/NamedFont.h"
#include "support/TextScale.h"

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/ctrlsub.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <map>

namespace
{

using Texts = std::vector<std::string>;

class EveryWindow : public EveryWindowTest
{
};

/// A field, a box with entries, or a list.
bool NeedsName(wxWindow* control)
{
    return dynamic_cast<wxTextEntry*>(control) != nullptr ||
           dynamic_cast<wxItemContainer*>(control) != nullptr || dynamic_cast<ListView*>(control) != nullptr;
}

bool HasCaption(wxWindow* control)
{
    return dynamic_cast<wxStaticText*>(control) != nullptr || dynamic_cast<wxButton*>(control) != nullptr ||
           dynamic_cast<wxRadioButton*>(control) != nullptr;
}

/// A caption without the "&" of its access key.
std::string Caption(const wxWindow* control)
{
    return wxControl::RemoveMnemonics(control->GetLabel()).utf8_string();
}

// Screen readers

TEST_F(EveryWindow, EveryFieldAndListHasANameForScreenReadersThatNoOtherHas)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            std::map<std::string, Texts> spoken;
            for (wxWindow* control : ControlsOf(window))
                if (NeedsName(control))
                    spoken[AccessibleName(control)].push_back(control->GetName().utf8_string());
            for (const auto& [name, controls] : spoken)
            {
                EXPECT_NE(name, "") << testing::PrintToString(controls);
                EXPECT_EQ(controls.size(), 1U) << name << ": " << testing::PrintToString(controls);
            }
        });
}

TEST_F(EveryWindow, ScreenReadersSayTheLabelBesideTheControl)
{
    struct Expected
    {
        ProgramWindow Window;
        const char* Control;
        const char* Name;
    };
    const Expected expected[] = {
        {MainForm, "cboRazina", "Razina:"},
        {MainForm, "cboProgram", "Program:"},
        {MainForm, "txtSearch", "Traži:"},
        {MainForm, "lvwKolegiji", "Kolegiji"},
        {EditorForm, "txtNaziv", "Kolegij:"},
        {EditorForm, "txtECTS", "ECTS"},
        {EditorForm, "cboObvezniIzborni", "Obvezni/Izborni"},
        {EditorForm, "lstNastavnik(3)", "3. nostielj"},
        {LecturerForm, "lstNastavnici", "Nostielji"},
        {LecturerForm, "cboRazina", "Razina"},
        {LecturerForm, "cboProgram", "Program"},
        {DepartmentForm, "cboRazina", "Razina"},
        {DepartmentForm, "cboZavodi", "Zavod"},
        {DepartmentForm, "lstSemestri", "Semestar"},
        {CalculatorForm, "txtNositelj", "Nositelj(i):"},
        {CalculatorForm, "txtSamostalniSati(1)", "Seminari, Samostalni sati"},
        {CalculatorForm, "txtLitUkupno", "Literatura, Ukupno"},
        {CalculatorForm, "txtPismeniProcjena", "Vlastita procjena"},
        {CalculatorForm, "txtOstaleMetode(9)", "Ostalo"},
        {CalculatorForm, "cbo1ECTS", "1 ECTS"},
    };
    for (const Expected& one : expected)
        InWindow(one.Window,
                 [&](wxTopLevelWindow& window) {
                     EXPECT_EQ(AccessibleName(Find<wxWindow>(&window, one.Control)), one.Name) << one.Control;
                 });
}

TEST_F(EveryWindow, ScreenReadersSayTheCaptionsOfButtonsAndOptions)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            for (wxWindow* control : ControlsOf(window))
                if (HasCaption(control))
                {
                    EXPECT_EQ(AccessibleName(control), Caption(control));
                }
        });
}

// The font

TEST_F(EveryWindow, IsInSegoeUiWhereTheSystemHasIt)
{
    ASSERT_TRUE(ProvideSegoeUi());
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            EXPECT_EQ(window.GetFont().GetFaceName(), "Segoe UI");
            for (wxWindow* control : ControlsOf(window))
                EXPECT_EQ(control->GetFont().GetFaceName(), "Segoe UI") << control->GetName();
        });
}

// Sizes

/// The place of a control in its window.
wxRect PlaceOf(wxWindow* control)
{
    return {control->GetPosition(), control->GetSize()};
}

/// The size that a control needs for its whole caption, line or chosen entry.
wxSize NeedOf(wxWindow* control)
{
    control->InvalidateBestSize();
    wxSize need = control->GetBestSize();
    if (dynamic_cast<wxTextCtrl*>(control) != nullptr)
        need = {0, control->GetCharHeight()};                   // its text scrolls sideways
    if (const auto* combo = dynamic_cast<wxComboBox*>(control)) // its longest entry, and the arrow
        need = {combo->GetSizeFromTextSize(combo->GetTextExtent("obvezni").x).x, combo->GetCharHeight() + 4};
    if (dynamic_cast<wxListBox*>(control) != nullptr || dynamic_cast<ListView*>(control) != nullptr)
        need = {0, 3 * control->GetCharHeight()}; // it scrolls
    return need;
}

/// Every control is inside its window, covers no other, and is large enough for its content.
void ExpectReadable(wxTopLevelWindow& window)
{
    wxWindow* parent = ControlParent(window);
    const wxRect whole(wxPoint(0, 0), parent->GetVirtualSize());
    if (dynamic_cast<wxScrolledWindow*>(parent) == nullptr)
    {
        EXPECT_EQ(whole.GetSize(), parent->GetClientSize());
    }
    const std::vector<wxWindow*> controls = ControlsOf(window);
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        const std::string name = controls[i]->GetName().utf8_string() + " '" + Caption(controls[i]) + "'";
        const wxRect place = PlaceOf(controls[i]);
        EXPECT_TRUE(whole.Contains(place)) << name << " is outside";
        const wxSize need = NeedOf(controls[i]);
        EXPECT_GE(place.width, need.x) << name;
        EXPECT_GE(place.height, need.y) << name;
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(place.Intersects(PlaceOf(controls[k])))
                << name << " covers " << controls[k]->GetName();
        if (const auto* list = dynamic_cast<ListView*>(controls[i]))
        {
            for (int column = 0; column < list->ColumnCount(); ++column)
                EXPECT_GE(list->ColumnWidth(column), list->GetTextExtent(list->ColumnCaption(column)).x)
                    << name << ", column " << column;
        }
    }
}

/// A window with a list of courses and the list of their sums.
struct SumsWindow
{
    ProgramWindow Window;
    const char* Sums;
};

constexpr SumsWindow SumsWindows[] = {
    {MainForm, "lvwStatistika"}, {LecturerForm, "lvwStat"}, {DepartmentForm, "lvwStatZavod"}};

/// The number of rows of a list that are wholly visible.
int RowsInSight(const ListView* list)
{
    const wxWindow* inner = list->GetChildren().front();
    const wxRect place(inner->GetScreenPosition(), inner->GetSize());
    int rows = 0;
    for (int row = 0; row < list->RowCount(); ++row)
    {
        const wxRect cell = CellPlace(list, row, 0);
        rows += cell.GetTop() > place.GetTop() && cell.GetBottom() <= place.GetBottom() ? 1 : 0;
    }
    return rows;
}

/// The empty height below a list's last row.
int EmptyBelow(const ListView* list)
{
    return list->GetScreenRect().GetBottom() - CellPlace(list, list->RowCount() - 1, 0).GetBottom();
}

class EveryListOfSums : public EveryWindowTest
{
protected:
    /// Opens each window with such lists, filled; runs a script with its courses and sums.
    void InEach(const std::function<void(wxTopLevelWindow&, ListView* courses, ListView* sums)>& script)
    {
        for (const SumsWindow& which : SumsWindows)
        {
            SCOPED_TRACE(which.Window.Name);
            InWindow(which.Window,
                     [&](wxTopLevelWindow& window)
                     {
                         if (auto* lecturers = dynamic_cast<wxListBox*>(
                                 wxWindow::FindWindowByName("lstNastavnici", &window)))
                             Click(lecturers, 0);
                         script(window, Find<ListView>(&window, "lvwKolegiji"),
                                Find<ListView>(&window, which.Sums));
                     });
        }
    }
};

TEST_F(EveryListOfSums, IsInSightWholeOnAScreenOf1366By768)
{
    constexpr int caption = 40; // of the window, and of the desktop's own bars
    InEach(
        [](wxTopLevelWindow& window, ListView* courses, ListView* sums)
        {
            wxSize size = window.GetSize();
            size.DecTo({1366, 768 - caption});
            window.SetSize(size);
            Settle();
            EXPECT_EQ(RowsInSight(sums), 15);
            EXPECT_GE(RowsInSight(courses), 6);
            RecordProperty(window.GetName().utf8_string(), RowsInSight(courses));
        });
}

TEST_F(EveryListOfSums, IsAsHighAsItsRowsAndAtLeastSix)
{
    InEach(
        [](wxTopLevelWindow& window, ListView*, ListView* sums)
        {
            window.SetMaxSize(wxSize(2000, 1500)); // some systems keep a window within the screen
            window.SetSize(wxSize(window.GetSize().x, 1000));
            Settle();
            const int row = CellPlace(sums, 1, 0).y - CellPlace(sums, 0, 0).y;
            EXPECT_EQ(RowsInSight(sums), 15);
            EXPECT_LT(EmptyBelow(sums), row);
            if (window.GetName() != MainForm.Name)
                return;
            Choose(Find<wxChoice>(&window, "cboSemestar"), "1");
            ASSERT_EQ(sums->RowCount(), 5);
            EXPECT_GE(EmptyBelow(sums), row);
            EXPECT_LT(EmptyBelow(sums), 2 * row);
            Choose(Find<wxChoice>(&window, "cboRazina"), "Diplomski");
            EXPECT_EQ(RowsInSight(sums), 11);
            EXPECT_LT(EmptyBelow(sums), row);
        });
}

TEST_F(EveryListOfSums, IsBesideTheCoursesWhereverBothShowAllColumns)
{
    InEach(
        [](wxTopLevelWindow& window, ListView* courses, ListView* sums)
        {
            const auto widthOf = [](const ListView* list)
            {
                int width = 0;
                for (int column = 0; column < list->ColumnCount(); ++column)
                    width += list->ColumnWidth(column);
                return width;
            };
            window.SetMaxSize(wxSize(2000, 1500)); // some systems keep a window within the screen
            int beside = 0;
            int below = 0;
            for (int width = 900; width <= 1800; width += 50)
            {
                window.SetSize(wxSize(width, 720));
                Settle();
                const wxRect first = courses->GetScreenRect();
                const wxRect second = sums->GetScreenRect();
                if (second.GetLeft() > first.GetRight())
                {
                    ++beside;
                    EXPECT_GE(first.width, widthOf(courses)) << width;
                    EXPECT_GE(second.width, widthOf(sums)) << width;
                }
                else
                {
                    ++below;
                    EXPECT_EQ(beside, 0) << width;
                    EXPECT_GT(second.GetTop(), first.GetBottom()) << width;
                    EXPECT_LT(first.width, widthOf(courses) + widthOf(sums) + window.FromDIP(80)) << width;
                }
            }
            EXPECT_GT(beside, 0);
            EXPECT_GT(below, 0);
        });
}

class EveryWindowAtTextSize : public EveryWindowTest, public testing::WithParamInterface<int>
{
};

TEST_P(EveryWindowAtTextSize, CutsNothing)
{
    const TextScale scale(GetParam());
    InEveryWindow([](wxTopLevelWindow& window) { ExpectReadable(window); });
}

TEST_P(EveryWindowAtTextSize, FitsOnAScreenThatSuitsTheText)
{
    const TextScale scale(GetParam());
    wxSize screen = wxGetDisplaySize();
    if (GetParam() >= 200)
        screen.IncTo(wxSize(1920, 1200)); // no user has such text on a smaller screen
    InEveryWindow(
        [&](wxTopLevelWindow& window)
        {
            EXPECT_LE(window.GetSize().x, screen.x);
            EXPECT_LE(window.GetSize().y, screen.y);
        });
}

TEST_P(EveryWindowAtTextSize, CutsNothingWhenTheUserChangesTheWindowsSize)
{
    const TextScale scale(GetParam());
    for (const ProgramWindow& which : ProgramWindows)
    {
        SCOPED_TRACE(which.Name);
        InWindow(which,
                 [](wxTopLevelWindow& window)
                 {
                     if (!window.HasFlag(wxRESIZE_BORDER))
                         return;
                     window.SetSize(window.GetSize() + wxSize(200, 120));
                     Settle();
                     ExpectReadable(window);
                     window.SetSize(window.GetMinSize());
                     Settle();
                     ExpectReadable(window);
                 });
    }
}

TEST_P(EveryWindowAtTextSize, KeepsRoomForASearchText)
{
    const TextScale scale(GetParam());
    OpenMain();
    auto* search = Find<wxTextCtrl>(Main, "txtSearch");
    const int room = search->GetSizeFromTextSize(search->GetTextExtent(wxString('n', 20)).x).x;
    EXPECT_GE(search->GetSize().x, room);
    Main->SetSize(Main->GetMinSize());
    Settle();
    EXPECT_GE(search->GetSize().x, room);
}

// On Windows only one size: that of the session.
#ifdef _WIN32
INSTANTIATE_TEST_SUITE_P(OfTheSession, EveryWindowAtTextSize, testing::Values(100),
                         testing::PrintToStringParamName());
#else
INSTANTIATE_TEST_SUITE_P(PerCent, EveryWindowAtTextSize, testing::Values(100, 150, 200),
                         testing::PrintToStringParamName());
#endif

TEST_F(EveryWindow, ShowsAllItsControlsOnASmallScreenWithoutScrolling)
{
    if (wxGetDisplayPPI().x > 120)
        GTEST_SKIP() << "a screen of this resolution has more pixels";
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            EXPECT_LE(window.GetSize().x, 1280);
            EXPECT_LE(window.GetSize().y, 800);
            const wxWindow* parent = ControlParent(window);
            EXPECT_EQ(parent->GetVirtualSize(), parent->GetClientSize());
        });
}

TEST_F(EveryWindow, GivesALargerWindowsRoomToItsLists)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            if (!window.HasFlag(wxRESIZE_BORDER))
                return;
            const auto extents = [&]
            {
                std::map<std::string, wxSize> sizes;
                for (wxWindow* control : ControlsOf(window))
                    if (dynamic_cast<wxListBox*>(control) != nullptr ||
                        dynamic_cast<ListView*>(control) != nullptr)
                        sizes[control->GetName().utf8_string()] = control->GetSize();
                return sizes;
            };
            const auto before = extents();
            window.SetSize(window.GetSize() + wxSize(100, 100));
            Settle();
            int wider = 0;
            for (const auto& [name, size] : extents())
            {
                const bool isSums = name.starts_with("lvwStat"); // as high as their rows
                EXPECT_TRUE(isSums || size.y > before.at(name).y) << name;
                EXPECT_GE(size.x, before.at(name).x) << name;
                wider += size.x > before.at(name).x ? 1 : 0;
            }
            EXPECT_TRUE(before.empty() || wider > 0);
        });
}

} // namespace
