#include "data/modData.h"
#include "support/CourseEditor.h"
#include "support/ListWindow.h"

#include <functional>
#include <string>
#include <vector>

// The selected course and its place on the screen after a refresh.

namespace
{

void Escape(frmKolegij* editor)
{
    PressKey(Find<wxWindow>(editor, "txtP"), WXK_ESCAPE);
}

void SaveByEnter(frmKolegij* editor)
{
    FillValid(editor);
    PressKey(Find<wxWindow>(editor, "txtP"), WXK_RETURN);
    WaitUntil([&] { return !editor->IsShown(); }); // a button is shown pressed for a moment
}

/// A hundred courses in the study "LOR"; every second one is an elective in semester 2.
class MainWindowPlace : public CourseEditor
{
protected:
    void OpenHundred()
    {
        for (int id = 1; id <= 100; ++id)
        {
            const std::string kind = id % 2 == 1 ? ";1;1;1;1;obvezni;1;1" : ";1;1;1;1;izborni;2;1";
            Lines.push_back(std::to_string(id) + ";Kolegij " + std::to_string(id) + kind);
        }
        Catalogue catalogue = SmallCatalogue();
        catalogue.Kolegiji.assign(Lines.begin(), Lines.end());
        const MessageAnswers answers;
        Open(catalogue);
    }

    void OpenCourses(const Catalogue::Lines& courses)
    {
        Catalogue catalogue = SmallCatalogue();
        catalogue.Kolegiji = courses;
        const MessageAnswers answers; // equal IDs are not valid
        Open(catalogue);
    }

    /// Selects a course in the middle of a page by keys. It is so far from the end of the list that with half
    /// of the rows, on a higher page, it can still have the same place.
    void GoToMiddle()
    {
        ClickRow(Kolegiji(), 2);
        for (const int key : {WXK_PAGEDOWN, WXK_PAGEDOWN, WXK_UP, WXK_UP})
            PressKey(Kolegiji(), key);
    }

    std::string Selected()
    {
        const int row = Kolegiji()->SelectedRow();
        return row < 0 ? "none" : Kolegiji()->CellText(row, 0).utf8_string();
    }

    /// The upper edge of the selected row on the screen.
    int Place() { return CellPlace(Kolegiji(), Kolegiji()->SelectedRow(), 0).y; }

    bool IsOnScreen(int row)
    {
        const wxRect cell = CellPlace(Kolegiji(), row, 1);
        return cell.height > 0 && InnerList(Kolegiji())->GetScreenRect().Contains(cell);
    }

    /// Does something that refreshes the list; checks that the same course is selected, in the same place.
    void ExpectKept(const std::function<void()>& refresh)
    {
        const std::string course = Selected();
        const int place = Place();
        refresh();
        Settle();
        EXPECT_EQ(Selected(), course);
        ASSERT_GE(Kolegiji()->SelectedRow(), 0);
        EXPECT_NEAR(Place(), place, 1);
    }

    void DeleteSelected()
    {
        const MessageAnswers yes(wxID_YES);
        PressKey(Kolegiji(), WXK_DELETE);
        Settle();
    }

    std::vector<std::string> Lines;
};

TEST_F(MainWindowPlace, NothingIsSelectedAtTheStart)
{
    OpenHundred();
    EXPECT_EQ(Selected(), "none");
    EXPECT_TRUE(IsOnScreen(0));
}

TEST_F(MainWindowPlace, TheEditorLeavesTheCourseWhereItWas)
{
    OpenHundred();
    GoToMiddle();
    ASSERT_FALSE(IsOnScreen(0)) << "the list is scrolled";
    const auto enter = [this] { PressKey(Kolegiji(), WXK_RETURN); };
    ExpectKept([&] { RunEditor(enter, Escape); });
    ExpectKept([&] { RunEditor(enter, SaveByEnter); });
    EXPECT_EQ(Kolegiji()->CellText(Kolegiji()->SelectedRow(), 1), "Novi kolegij");
    ExpectKept([&] { RunEditor([this] { PressKey(Kolegiji(), WXK_INSERT); }, Escape); });
    const int row = Kolegiji()->SelectedRow();
    PressKey(Kolegiji(), WXK_DOWN);
    EXPECT_EQ(Kolegiji()->SelectedRow(), row + 1) << "the keys go on from there";
}

TEST_F(MainWindowPlace, AnExportLeavesTheCourseWhereItWas)
{
    OpenHundred();
    GoToMiddle();
    for (const char* button : {"cmdExport", "cmdExportVarlo"})
        ExpectKept(
            [&]
            {
                const SaveAnswers save(Folder.PathOf("export.csv"));
                MessageAnswers answers;
                PressKey(Find<wxWindow>(Window, button), WXK_SPACE);
                WaitUntil([&] { return !answers.Shown().empty(); });
            });
}

TEST_F(MainWindowPlace, AFilterAndASearchLeaveTheCourseWhereItWas)
{
    OpenHundred();
    GoToMiddle();
    if (Kolegiji()->SelectedRow() % 2 == 0)
        PressKey(Kolegiji(), WXK_UP);
    const int row = Kolegiji()->SelectedRow();
    ExpectKept([&] { Choose(Find<wxChoice>(Window, "cboSemestar"), "2"); });
    EXPECT_LT(Kolegiji()->SelectedRow(), row) << "rows before it are gone";
    ExpectKept([&] { Choose(Find<wxChoice>(Window, "cboSemestar"), "Svi"); });
    auto* search = Find<wxTextCtrl>(Window, "txtSearch");
    ExpectKept([&] { Type(search, "izborni"); });
    ExpectKept([&] { PressKey(search, WXK_ESCAPE); });
    EXPECT_EQ(Kolegiji()->SelectedRow(), row);
}

TEST_F(MainWindowPlace, AFilterThatHidesTheSelectedCourseEndsTheSelection)
{
    OpenHundred();
    ClickRow(Kolegiji(), 2);
    ASSERT_EQ(Selected(), "3");
    Choose(Find<wxChoice>(Window, "cboSemestar"), "2");
    EXPECT_EQ(Selected(), "none");
    Choose(Find<wxChoice>(Window, "cboSemestar"), "Svi");
    EXPECT_EQ(Selected(), "none");
}

TEST_F(MainWindowPlace, ARefreshOpensNothing)
{
    OpenHundred();
    ClickRow(Kolegiji(), 2);
    const EditorSession session([](frmKolegij*) {});
    const MessageAnswers none;
    Type(Find<wxTextCtrl>(Window, "txtSearch"), "3");
    EXPECT_EQ(Selected(), "3");
    EXPECT_TRUE(HasFocus(Find<wxTextCtrl>(Window, "txtSearch")));
    EXPECT_FALSE(session.Opened());
    EXPECT_TRUE(none.Shown().empty());
}

TEST_F(MainWindowPlace, ANewCourseIsSelectedAndScrolledTo)
{
    OpenHundred();
    ClickRow(Kolegiji(), 2);
    RunEditor([this] { PressKey(Kolegiji(), WXK_INSERT); }, SaveByEnter);
    EXPECT_EQ(Selected(), "101");
    EXPECT_EQ(Kolegiji()->SelectedRow(), 100);
    EXPECT_TRUE(IsOnScreen(100));
}

TEST_F(MainWindowPlace, ANewCourseThatTheFilterHidesLeavesTheSelection)
{
    OpenHundred();
    Choose(Find<wxChoice>(Window, "cboSemestar"), "1");
    GoToMiddle();
    ExpectKept([&] { RunEditor([this] { PressKey(Kolegiji(), WXK_INSERT); }, SaveByEnter); });
    EXPECT_EQ(modData::Kolegiji.RowCount(), 101U);
}

TEST_F(MainWindowPlace, AfterADeletionTheFollowingCourseIsSelectedInItsPlace)
{
    OpenHundred();
    GoToMiddle();
    const int row = Kolegiji()->SelectedRow();
    const int place = Place();
    const std::string following = Kolegiji()->CellText(row + 1, 0).utf8_string();
    DeleteSelected();
    EXPECT_EQ(Selected(), following);
    EXPECT_EQ(Kolegiji()->SelectedRow(), row);
    EXPECT_NEAR(Place(), place, 1);

    PressKey(Kolegiji(), WXK_END);
    ASSERT_EQ(Selected(), "100");
    DeleteSelected();
    EXPECT_EQ(Selected(), "99");
    EXPECT_TRUE(IsOnScreen(Kolegiji()->SelectedRow()));
}

TEST_F(MainWindowPlace, AfterADeletionInASortedListTheRowThatFollowsIsSelected)
{
    OpenCourses({"1;C;1;1;1;1;obvezni;1;1", "2;A;1;1;1;1;obvezni;1;1", "3;B;1;1;1;1;obvezni;1;1"});
    ClickHeader(Kolegiji(), 1);
    ClickRow(Kolegiji(), 1);
    ASSERT_EQ(Selected(), "3");
    for (const char* next : {"1", "2", "none"})
    {
        DeleteSelected();
        EXPECT_EQ(Selected(), next);
    }
    EXPECT_EQ(Kolegiji()->RowCount(), 0);
}

TEST_F(MainWindowPlace, OfEqualIDsTheSameCourseStaysSelected)
{
    OpenCourses({"1;A;1;1;1;1;obvezni;1;1", "7;B;1;1;1;1;obvezni;1;1", "7;C;1;1;1;1;obvezni;2;1",
                 "7;D;1;1;1;1;obvezni;3;1", "9;E;1;1;1;1;obvezni;2;1"});
    auto* semester = Find<wxChoice>(Window, "cboSemestar");
    ClickRow(Kolegiji(), 2);
    Choose(semester, "2");
    EXPECT_EQ(Kolegiji()->SelectedRow(), 0);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"C", "E"}));
    Choose(semester, "Svi");
    EXPECT_EQ(Kolegiji()->SelectedRow(), 2);
    Choose(semester, "1");
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"A", "B"}));
    EXPECT_EQ(Selected(), "none") << "the other course of the same ID is not hers";

    Choose(semester, "Svi");
    ClickRow(Kolegiji(), 2);
    DeleteSelected(); // takes all three
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"A", "E"}));
    EXPECT_EQ(Selected(), "9");
}

} // namespace
