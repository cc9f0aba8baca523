#include "support/Windows.h"

#include "ui/controls/SortMemory.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/stopwatch.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include "ui/controls/NativeFunction_gtk.h"
#endif

namespace
{

std::string UncaughtError;

int PositionOf(const wxControlWithItems* box, const char* entry)
{
    const int position = box->FindString(wxString::FromUTF8(entry), true);
    if (position == wxNOT_FOUND)
        throw std::runtime_error(std::string("no entry ") + entry);
    return position;
}

/// A point on an entry of a list box; nothing if the entry is scrolled out of view.
std::optional<wxPoint> PointOn(const wxListBox* list, int position)
{
    const wxPoint step(0, list->FromDIP(4)); // away from the entry's upper edge
    for (wxPoint point(list->FromDIP(20), 0); point.y < list->GetClientSize().y; ++point.y)
        if (list->HitTest(point) == position && list->HitTest(point + step) == position)
            return point + step;
    return std::nullopt;
}

} // namespace

void Settle()
{
    // Keys and window sizes go through the display server; a short time without events means that all have
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

void WaitUntil(const std::function<bool()>& condition)
{
    constexpr long patience = 5000;
    for (const wxStopWatch watch; !condition(); wxMilliSleep(1))
    {
        if (watch.Time() > patience)
            throw std::runtime_error("waited in vain");
        wxYield();
        wxTheApp->ProcessIdle();
    }
}

bool IsOpen(const wxChoice* box)
{
#ifdef _WIN32
    return SendMessageW(box->GetHWND(), CB_GETDROPPEDSTATE, 0, 0) != 0;
#else
    int shown = 0;
    NativeFunction<void (*)(GtkWidget*, const char*, ...)>("g_object_get")(box->GetHandle(), "popup-shown",
                                                                           &shown, nullptr);
    return shown != 0;
#endif
}

void Open(wxChoice* box)
{
    auto* window = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(box));
    if (!window->IsActive())
        window->Raise();
    // The mouse must not be over the list when it opens: it would choose an entry.
    const wxRect place = window->GetScreenRect();
    wxUIActionSimulator().MouseMove(place.GetBottomRight() - wxPoint(4, 4));
    Settle();
    Focus(box);
    wxUIActionSimulator().Char(WXK_DOWN, wxMOD_ALT);
    WaitUntil([&] { return IsOpen(box); });
}

void Choose(wxChoice* box, int position)
{
    if (position >= static_cast<int>(box->GetCount()))
        throw std::runtime_error("no entry " + std::to_string(position));
    Open(box);
    wxUIActionSimulator keys;
    keys.Char(WXK_HOME);
    for (int i = 0; i < position; ++i)
        keys.Char(WXK_DOWN);
    keys.Char(WXK_RETURN);
    WaitUntil([&] { return !IsOpen(box); });
    Settle();
}

void Choose(wxChoice* box, const char* entry)
{
    Choose(box, PositionOf(box, entry));
}

void Click(wxListBox* list, int position, wxKeyCode held)
{
    if (position >= static_cast<int>(list->GetCount()))
        throw std::runtime_error("no entry " + std::to_string(position));
    // GTK scrolls even to a visible entry, and two clicks at one point are a double click.
    if (!PointOn(list, position))
        list->EnsureVisible(position);
    WaitUntil([&] { return PointOn(list, position).has_value(); });
    wxUIActionSimulator simulator;
    simulator.MouseMove(list->ClientToScreen(*PointOn(list, position)));
    Settle();
    if (held != WXK_NONE)
        simulator.KeyDown(held);
    simulator.MouseClick();
    Settle();
    if (held != WXK_NONE)
        simulator.KeyUp(held);
    Settle();
}

void Click(wxListBox* list, const char* entry)
{
    Click(list, PositionOf(list, entry));
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
    ClickAt(control->ClientToScreen(wxPoint(size.x / 2, size.y / 2)));
}

void ClickAt(wxPoint onScreen)
{
    wxUIActionSimulator simulator;
    simulator.MouseMove(onScreen);
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

void ExpectCentredOnScreen(const wxWindow* window)
{
    const wxRect place = window->GetRect();
    const wxSize screen = wxGetDisplaySize();
    EXPECT_NEAR(2 * place.x, screen.x - place.width, 4);
    EXPECT_NEAR(2 * place.y, screen.y - place.height, 4);
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
    if (m_messages.size() != 1)
        throw std::runtime_error(std::to_string(m_messages.size()) + " messages instead of one");
    MessageShown only = m_messages.front();
    m_messages.clear();
    return only;
}

int MessageAnswers::Enter(wxDialog* dialog)
{
    const auto* box = dynamic_cast<wxMessageDialog*>(dialog);
    if (box == nullptr)
        return wxID_NONE;
    m_messages.push_back(
        {box->GetMessage().utf8_string(), box->GetCaption().utf8_string(), box->GetMessageDialogStyle()});
    return m_answer;
}

SaveAnswers::SaveAnswers(std::optional<std::string> path)
{
    SetSaveDialogChooser(
        [this, path = std::move(path)](const SaveDialogOptions& options)
        {
            m_options.push_back(options);
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
