// Pasting into every box of every window.

#include "support/Clipboard.h"
#include "support/EveryWindow.h"

#include <wx/combobox.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <set>

namespace
{

class Paste : public EveryWindowTest
{
};

/// The one-line boxes of a window.
std::vector<wxWindow*> OneLineBoxes(wxTopLevelWindow& window)
{
    std::vector<wxWindow*> boxes;
    for (wxWindow* control : ControlsOf(window))
    {
        const auto* text = dynamic_cast<wxTextCtrl*>(control);
        if ((text != nullptr && text->IsEditable() && !text->IsMultiLine()) ||
            dynamic_cast<wxComboBox*>(control) != nullptr)
            boxes.push_back(control);
    }
    return boxes;
}

std::string TextOf(wxWindow* box)
{
    return dynamic_cast<wxTextEntry&>(*box).GetValue().utf8_string();
}

/// Focuses a box, empties it, pastes in the given way, and waits for the text.
template<typename Action>
std::string Pasted(wxWindow* box, const Action& paste)
{
    Focus(box);
    dynamic_cast<wxTextEntry&>(*box).ChangeValue("");
    paste();
    for (const wxStopWatch watch; TextOf(box).empty() && watch.Time() < 1000;)
        Settle();
    return TextOf(box);
}

TEST_F(Paste, EveryOneLineBoxTakesATextUpToItsFirstLineBreak)
{
    std::set<std::string> names;
    InEveryWindow(
        [&](wxTopLevelWindow& window)
        {
            for (wxWindow* box : OneLineBoxes(window))
            {
                names.insert(box->GetName().utf8_string());
                box->Enable(); // some are enabled by an option
                for (const std::string breaks : {"\r\n", "\n", "\r"})
                {
                    PutOnClipboard(std::string("Uvod u").append(breaks).append("žičano").append(breaks));
                    EXPECT_EQ(Pasted(box, [box] { PressKey(box, 'V', wxMOD_CONTROL); }), "Uvod u")
                        << box->GetName() << ", code " << static_cast<int>(breaks.front());
                }
                PutOnClipboard("Žičano i još");
                EXPECT_EQ(Pasted(box, [box] { PressKey(box, 'V', wxMOD_CONTROL); }), "Žičano i još");
                dynamic_cast<wxTextEntry&>(*box).SetValue(""); // a search text would empty the list
            }
        });
    for (const char* name : {"txtSearch", "txtNaziv", "txtECTS", "cboObvezniIzborni", "txtNazivKolegija",
                             "txtNositelj", "txtLitProcjena(3)", "txtOstaleMetode(9)"})
        EXPECT_TRUE(names.contains(name)) << name;
}

TEST_F(Paste, ReplacesTheSelectionAndCanBeUndone)
{
    InWindow(EditorForm,
             [](wxTopLevelWindow& editor)
             {
                 auto* box = Find<wxTextCtrl>(&editor, "txtNaziv");
                 box->ChangeValue("Uvod u lov");
                 Focus(box);
                 box->SetSelection(5, 6);
                 PutOnClipboard("za\ndrugi");
                 PressKey(box, 'V', wxMOD_CONTROL);
                 for (const wxStopWatch watch; TextOf(box) == "Uvod u lov" && watch.Time() < 1000;)
                     Settle();
                 EXPECT_EQ(TextOf(box), "Uvod za lov");
#ifdef _WIN32
                 PressKey(box, 'Z', wxMOD_CONTROL);
                 EXPECT_EQ(TextOf(box), "Uvod u lov");
#endif
             });
}

TEST_F(Paste, TheCommentTakesEveryLine)
{
    InWindow(CalculatorForm,
             [](wxTopLevelWindow& window)
             {
                 auto* comment = Find<wxTextCtrl>(&window, "txtKomentar");
                 PutOnClipboard("prvi\r\ndrugi");
                 Pasted(comment, [comment] { PressKey(comment, 'V', wxMOD_CONTROL); });
                 EXPECT_EQ(comment->GetNumberOfLines(), 2);
             });
}

#ifndef _WIN32
// For systems on which the middle button pastes the text that is selected in another window.
TEST_F(Paste, TheMiddleButtonPastesOneLineToo)
{
    InWindow(EditorForm,
             [](wxTopLevelWindow& editor)
             {
                 for (const char* name : {"txtNaziv", "cboObvezniIzborni"})
                 {
                     auto* box = Find<wxWindow>(&editor, name);
                     const wxPoint inText(box->FromDIP(12), box->GetSize().y / 2);
                     EXPECT_EQ(Pasted(box,
                                      [&]
                                      {
                                          // The box marked its own text when it got the focus.
                                          PutOnClipboard("Uvod u\nlov", true);
                                          wxUIActionSimulator simulator;
                                          simulator.MouseMove(box->ClientToScreen(inText));
                                          Settle();
                                          simulator.MouseClick(wxMOUSE_BTN_MIDDLE);
                                      }),
                               "Uvod u")
                         << name;
                 }
             });
}
#endif

} // namespace
