#pragma once

#include "data/System.h"
#include "ui/controls/ExportCommand.h"
#include "ui/controls/ListModel.h"
#include "ui/controls/SaveDialog.h"

#include <wx/frame.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

class ListView;
class wxButton;
class wxPanel;
class wxSizer;

/// What the windows of teaching load share: the list of courses with the table of sums, and the buttons.
/// Modeless, one of each window for the program.
class TeachingLoadWindow : public wxFrame
{
protected:
    /// What tells one window from the other.
    struct Description
    {
        std::string_view Name;
        std::string_view Caption;
        std::string_view SumsName; ///< The name of the list of sums.
        std::span<const ListColumn> SumsColumns;
        ExportTexts Export;
        std::string_view ExportName; ///< The file name to propose.
    };

    TeachingLoadWindow(wxWindow* parent, const Description& description);

    // Controls are made in tab order: a window's own first, then the lists, then the buttons.

    wxSizer* NewLists();
    wxSizer* NewButtons();

    /// Shows the layout of all controls, with a margin, and sets the window's sizes.
    void SetLayout(wxSizer* controls);

    /// Sets the text that the list of courses shows when it is empty.
    void SetEmptyText(std::string_view text);

    void ShowCourses(std::vector<ListRow> rows);
    void ShowSums(std::vector<ListRow> rows);

    wxPanel* Panel; ///< The parent of all controls.

private:
    virtual void ExportAll(const std::string& path) const = 0;

    // Events
    void cmdExportAllStat_Click();
    void cmdClose_Click();

    Description m_description;
    ListView* lvwKolegiji;
    ListView* m_sums;
    wxButton* cmdExportAllStat;
    wxButton* cmdClose;
    SaveDialogOptions cdlSave{.InitialFolder = System::ProgramFolder(), .FileToWrite = WithCsvEnding};
};
