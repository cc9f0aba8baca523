#include "support/Windows.h"

#include "ui/controls/SortMemory.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/stopwatch.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

namespace
{

std::string UncaughtError;

} // namespace

void Settle()
{
    // Key strokes and window sizes travel through the display server; a short while of quiet means all
    // arrived.
    constexpr long quietMilliseconds = 30;
    wxStopWatch quiet;
    do
    {
        wxYield();
        while (wxTheApp->ProcessIdle())
            wxYield();
        wxMilliSleep(2);
    } while (quiet.Time() < quietMilliseconds);
}

void Choose(wxChoice* box, const wxString& entry)
{
    if (!box->SetStringSelection(entry))
        throw std::runtime_error("no entry " + entry.utf8_string());
    wxCommandEvent event(wxEVT_CHOICE, box->GetId());
    event.SetEventObject(box);
    event.SetInt(box->GetSelection());
    event.SetString(entry);
    box->GetEventHandler()->SafelyProcessEvent(event);
    Settle();
}

void Press(wxWindow* window, const wxString& buttonName)
{
    auto* button = Find<wxButton>(window, buttonName);
    if (!button->IsEnabled())
        return;
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->GetEventHandler()->SafelyProcessEvent(event);
    Settle();
}

void Focus(wxWindow* control)
{
    const wxWindow* focused = wxWindow::FindFocus();
    if (focused == control || (focused != nullptr && control->IsDescendant(const_cast<wxWindow*>(focused))))
        return;
    control->SetFocus();
    Settle();
}

void PressKey(wxWindow* control, int keyCode, int modifiers)
{
    Focus(control);
    wxUIActionSimulator().Char(keyCode, modifiers);
    Settle();
}

void Type(wxWindow* control, const char* text)
{
    Focus(control);
    wxUIActionSimulator().Text(text);
    Settle();
}

void Click(wxWindow* control)
{
    const wxSize size = control->GetSize();
    wxUIActionSimulator simulator;
    simulator.MouseMove(control->ClientToScreen(wxPoint(size.x / 2, size.y / 2)));
    Settle();
    simulator.MouseClick();
    Settle();
}

std::vector<std::string> EntriesOfBox(const wxItemContainer* box)
{
    std::vector<std::string> entries;
    for (unsigned i = 0; i < box->GetCount(); ++i)
        entries.push_back(box->GetString(i).utf8_string());
    return entries;
}

std::vector<std::string> ColumnTexts(const ListView* list, int column)
{
    std::vector<std::string> texts;
    for (int row = 0; row < list->RowCount(); ++row)
        texts.push_back(list->CellText(row, column).utf8_string());
    return texts;
}

void CloseAllWindows()
{
    const std::vector<wxWindow*> open(wxTopLevelWindows.begin(), wxTopLevelWindows.end());
    for (wxWindow* window : open)
        window->Destroy();
    Settle();
    ForgetSorting();
}

MessageShown MessageAnswers::TakeOnly()
{
    if (Messages.size() != 1)
        throw std::runtime_error(std::to_string(Messages.size()) + " messages instead of one");
    MessageShown only = Messages.front();
    Messages.clear();
    return only;
}

int MessageAnswers::Enter(wxDialog* dialog)
{
    const auto* box = dynamic_cast<wxMessageDialog*>(dialog);
    if (box == nullptr)
        return wxID_NONE;
    Messages.push_back(
        {box->GetMessage().utf8_string(), box->GetCaption().utf8_string(), box->GetMessageDialogStyle()});
    return Answer;
}

SaveAnswers::SaveAnswers(std::optional<std::string> path)
{
    SetSaveDialogChooser(
        [this, path](const SaveDialogOptions& options)
        {
            Options.push_back(options);
            return path;
        });
}

SaveAnswers::~SaveAnswers()
{
    SetSaveDialogChooser({});
}

void NoteUncaughtError(std::string text)
{
    UncaughtError = std::move(text);
}

std::string TakeUncaughtError()
{
    return std::exchange(UncaughtError, {});
}
