#pragma once

#include "support/Catalogue.h"
#include "support/EditorSession.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"

#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

// Shared by the tests of the course editor.

using Texts = std::vector<std::string>;
using Script = EditorSession::Script;

// Reading and driving the editor's controls

inline std::string Text(frmKolegij* editor, const char* name)
{
    auto* entry = dynamic_cast<wxTextEntry*>(Find<wxWindow>(editor, name));
    return entry->GetValue().utf8_string();
}

inline void SetText(frmKolegij* editor, const char* name, const char* text)
{
    dynamic_cast<wxTextEntry*>(Find<wxWindow>(editor, name))->SetValue(wxString::FromUTF8(text));
}

inline wxChoice* Box(frmKolegij* editor, const char* name)
{
    return Find<wxChoice>(editor, name);
}

inline std::string Chosen(frmKolegij* editor, const char* name)
{
    return Box(editor, name)->GetStringSelection().utf8_string();
}

inline wxListBox* List(frmKolegij* editor, const char* name)
{
    return Find<wxListBox>(editor, name);
}

inline Texts Selected(frmKolegij* editor, const char* name)
{
    wxArrayInt positions;
    List(editor, name)->GetSelections(positions);
    Texts selected;
    for (const int position : positions)
        selected.push_back(List(editor, name)->GetString(static_cast<unsigned>(position)).utf8_string());
    return selected;
}

inline void Select(frmKolegij* editor, const char* name, const char* entry)
{
    if (!List(editor, name)->SetStringSelection(wxString::FromUTF8(entry)))
        throw std::runtime_error(std::string("no entry ") + entry);
}

inline constexpr const char* NastavnikLists[] = {"lstNastavnik(1)", "lstNastavnik(2)", "lstNastavnik(3)"};

/// Fills in everything that the checks need.
inline void FillValid(frmKolegij* editor)
{
    SetText(editor, "txtNaziv", "Novi kolegij");
    SetText(editor, "txtP", "2");
    SetText(editor, "txtS", "1");
    SetText(editor, "txtV", "0");
    SetText(editor, "txtECTS", "6");
    SetText(editor, "cboObvezniIzborni", "izborni");
    Select(editor, "lstSemestar", "3");
    Select(editor, "lstSmjerovi", "POS");
    Select(editor, "lstNastavnik(1)", "Šarić Žarko");
}

inline bool HasFocus(wxWindow* control)
{
    wxWindow* focused = wxWindow::FindFocus();
    return focused != nullptr && (focused == control || control->IsDescendant(focused));
}

/// The name of the editor's control that has the focus; a control may be made of several windows.
inline std::string FocusName(frmKolegij* editor)
{
    for (wxWindow* window = wxWindow::FindFocus(); window != nullptr; window = window->GetParent())
        if (window->GetParent() == editor)
            return window->GetName().utf8_string();
    return "none";
}

inline void Save(frmKolegij* editor)
{
    Press(editor, "cmdSave");
}

/// The real dialog, which the main window shows modally.
class CourseEditor : public testing::Test
{
protected:
    void Open(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        OpenFiles();
    }

    void OpenFiles()
    {
        Window = new frmMain;
        Window->Form_Load();
        Settle();
    }

    /// A catalogue that fails validation; the start-up's warning is answered.
    void OpenInvalid(const Catalogue& catalogue)
    {
        const MessageAnswers answers;
        Open(catalogue);
    }

    void TearDown() override
    {
        CloseAllWindows();
        EXPECT_EQ(TakeUncaughtError(), "");
    }

    ListView* Kolegiji() { return Find<ListView>(Window, "lvwKolegiji"); }

    void SelectCourse(const std::string& id)
    {
        const Texts ids = ColumnTexts(Kolegiji(), 0);
        const auto found = std::ranges::find(ids, id);
        ASSERT_NE(found, ids.end()) << "course " << id << " is not in the list";
        Kolegiji()->SelectRow(static_cast<int>(found - ids.begin()));
    }

    EditorEnd Add(const Script& script)
    {
        return RunEditor([this] { Press(Window, "cmdAdd"); }, script);
    }

    EditorEnd Edit(const std::string& id, const Script& script)
    {
        SelectCourse(id);
        return RunEditor([this] { Press(Window, "cmdEdit"); }, script);
    }

    std::string File(const char* name) { return ReadBytes(Folder.Data() / name); }

    TestFolder Folder;
    frmMain* Window = nullptr;
};
