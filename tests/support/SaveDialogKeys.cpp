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

SaveDialogKeys::SaveDialogKeys(std::vector<std::string> texts) : Texts(std::move(texts))
{
    Timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Work(); });
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
        Dialog = opened;
        Now = Step::Opening;
        SinceStep.Start();
        Timer.Start(PollMilliseconds);
    }
    return wxID_NONE;
}

void SaveDialogKeys::Exit(wxDialog* dialog)
{
    if (dialog != Dialog)
        return;
    Timer.Stop();
    Dialog = nullptr;
}

void SaveDialogKeys::Work()
{
    if (Busy || Dialog == nullptr)
        return;
    Busy = true;
    const std::optional<std::string> text =
        ShowsOwnMessage(*Dialog) ? std::nullopt : FocusedNameBoxText(*Dialog);
    const std::size_t turn = ProposedNames.size();
    if (Now == Step::Opening && text)
    {
        ProposedNames.push_back(*text);
        const bool cancel = turn >= Texts.size();
        if (!cancel)
            Fill();
        else
            Simulator.Char(WXK_ESCAPE);
        Now = cancel ? Step::Closing : Step::Filling;
        SinceStep.Start();
    }
    else if (Now == Step::Filling && text && text->starts_with(Texts[turn - 1]))
    { // GTK completes a typed name by that of a file
        Simulator.Char(WXK_RETURN);
        Now = Step::Closing;
        SinceStep.Start();
    }
    else if (Now == Step::Closing && ShowsOwnMessage(*Dialog))
    {
        Simulator.Char(WXK_ESCAPE);
        Now = Step::Opening;
        SinceStep.Start();
    }
    else if (SinceStep.Time() > PatienceMilliseconds)
    {
        ADD_FAILURE() << "the Save dialog does not answer; its name box has "
                      << text.value_or("not the focus");
        Simulator.Char(WXK_ESCAPE);
        Now = Step::Closing;
        SinceStep.Start();
    }
    Busy = false;
}

/// Types the text over what the name box holds; a long one comes from the clipboard.
void SaveDialogKeys::Fill()
{
    constexpr std::size_t longText = 100;
    const std::string& text = Texts[ProposedNames.size() - 1];
    Simulator.Char('A', wxMOD_CONTROL);
    if (text.size() < longText)
    {
        Simulator.Text(text.c_str());
        return;
    }
    if (wxTheClipboard->Open())
    {
        wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
        wxTheClipboard->Close();
    }
    Simulator.Char('V', wxMOD_CONTROL);
}
