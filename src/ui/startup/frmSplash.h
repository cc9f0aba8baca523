#pragma once

#include <wx/frame.h>
#include <wx/timer.h>

class wxKeyEvent;

/// The program's first window: shows its picture for a moment, then opens the main window.
class frmSplash : public wxFrame
{
public:
    /// Closes by itself after `shownMilliseconds`.
    explicit frmSplash(int shownMilliseconds = 1000);

    /// Shows the main window and closes this one. A second call does nothing.
    /// @throws RuntimeError from loading the tables
    void CloseSplash();

private:
    void BindEvents();

    void Timer1_Timer();
    void Form_Click();
    void Form_KeyDown(wxKeyEvent& key);

    bool m_closing = false;

    // Controls
    wxWindow* Picture1;
    wxTimer Timer1;
};
