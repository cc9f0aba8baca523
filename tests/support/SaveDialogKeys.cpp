#include "support/SaveDialogKeys.h"

#include "support/NativeSaveDialog.h"

#include <wx/clipbrd.h>

#include <gtest/gtest.h>

#include <utility>

namespace
{

constexpr int PollMilliseconds = 20;
constexpr long PatienceMilliseconds = 20000;

} // namespace

SaveDialogKeys::SaveDialogKeys(std::vector<std::string> texts) : m_texts(std::move(texts))
{
    m_timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Work(); });
    Register();
}

SaveDialogKeys::~SaveDialogKeys()
{
    Unregister();
}

int SaveDialogKeys::Enter(wxDialog* dialog)
{
    if (auto* opened = dynamic_cast<wxFileDialog*>(dialog))
    {
        m_dialog = opened;
        m_now = Step::Opening;
        m_sinceStep.Start();
        m_timer.Start(PollMilliseconds);
    }
    return wxID_NONE;
}

void SaveDialogKeys::Exit(wxDialog* dialog)
{
    if (dialog != m_dialog)
        return;
    m_timer.Stop();
    m_dialog = nullptr;
}

void SaveDialogKeys::Work()
{
    if (m_busy || m_dialog == nullptr)
        return;
    m_busy = true;
    const std::optional<std::string> text =
        ShowsOwnMessage(*m_dialog) ? std::nullopt : FocusedNameBoxText(*m_dialog);
    const std::size_t turn = m_proposedNames.size();
    if (m_now == Step::Opening && text)
    {
        m_proposedNames.push_back(*text);
        const bool cancel = turn >= m_texts.size();
        if (!cancel)
            Fill();
        else
            m_simulator.Char(WXK_ESCAPE);
        m_now = cancel ? Step::Closing : Step::Filling;
        m_sinceStep.Start();
    }
    else if (m_now == Step::Filling && text && text->starts_with(m_texts[turn - 1]))
    { // GTK completes a typed name to that of a file
        m_simulator.Char(WXK_RETURN);
        m_now = Step::Closing;
        m_sinceStep.Start();
    }
    else if (m_now == Step::Closing && ShowsOwnMessage(*m_dialog))
    {
        m_simulator.Char(WXK_ESCAPE);
        m_now = Step::Opening;
        m_sinceStep.Start();
    }
    else if (m_sinceStep.Time() > PatienceMilliseconds)
    {
        ADD_FAILURE() << "the Save dialog does not answer; its name box has "
                      << text.value_or("not the focus");
        m_simulator.Char(WXK_ESCAPE);
        m_now = Step::Closing;
        m_sinceStep.Start();
    }
    m_busy = false;
}

/// Replaces the text of the name box by typing; a long text is pasted.
void SaveDialogKeys::Fill()
{
    constexpr std::size_t longText = 100;
    const std::string& text = m_texts[m_proposedNames.size() - 1];
    m_simulator.Char('A', wxMOD_CONTROL);
    if (text.size() < longText)
    {
        m_simulator.Text(text.c_str());
        return;
    }
    if (wxTheClipboard->Open())
    {
        wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
        wxTheClipboard->Close();
    }
    m_simulator.Char('V', wxMOD_CONTROL);
}
