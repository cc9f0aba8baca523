#pragma once

#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// While it lives, keys drive the system's own Save dialog: each time it opens, the next text is put in its
/// name box and Enter is pressed. After the last text Escape cancels it. A message of the dialog is closed by
/// Escape, and the next text follows.
class SaveDialogKeys : public wxModalDialogHook
{
public:
    explicit SaveDialogKeys(std::vector<std::string> texts);
    ~SaveDialogKeys() override;

    /// The text of the name box each time, before it was replaced.
    const std::vector<std::string>& Proposed() const { return m_proposedNames; }

protected:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

private:
    enum class Step
    {
        Opening,
        Filling,
        Closing
    };

    void Work();
    void Fill();

    std::vector<std::string> m_texts;
    std::vector<std::string> m_proposedNames;
    wxFileDialog* m_dialog = nullptr;
    Step m_now = Step::Opening;
    wxStopWatch m_sinceStep;
    wxTimer m_timer;
    wxUIActionSimulator m_simulator;
    bool m_busy = false; ///< True while keys are pressed; the timer may fire again meanwhile.
};
