#include "ui/controls/Controls.h"

#include "ui/controls/Choices.h"
#include "ui/controls/NativeFields.h"
#include "ui/controls/ProgramIcons.h"
#include "ui/controls/Strings.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/listbox.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <algorithm>

wxFont ProgramFont()
{
    const wxFont systemFont = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    wxFont font = systemFont;
    return font.SetFaceName("Segoe UI") ? font : systemFont;
}

void ApplyAppStyle(wxTopLevelWindow& window)
{
    window.SetFont(ProgramFont());
    window.SetIcons(ProgramIcons());
}

wxButton* NewButton(wxWindow* parent, std::string_view name, std::string_view caption)
{
    auto* button = new wxButton(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, ToWx(name));
    FocusByAccessKey(*button);
    return button;
}

wxStaticText* NewLabel(wxWindow* parent, std::string_view name, std::string_view caption)
{
    return new wxStaticText(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize, 0, ToWx(name));
}

wxChoice* NewChoice(wxWindow* parent, std::string_view name, int characters)
{
    auto* choice = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                                wxDefaultValidator, ToWx(name));
    const int width = WidthForText(*choice, characters);
    // Without a chosen entry some systems do not make it high enough for large text.
    choice->Append("n");
    choice->SetSelection(0);
    choice->SetMinSize({width, choice->GetBestSize().y});
    choice->Clear();
    ReportEveryChoice(*choice);
    return choice;
}

wxTextCtrl* NewTextBox(wxWindow* parent, std::string_view name, int characters)
{
    auto* box = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                               wxDefaultValidator, ToWx(name));
    PasteFirstLineOnly(*box);
    UseTextSize(*box, characters);
    return box;
}

wxComboBox* NewComboBox(wxWindow* parent, std::string_view name, int characters)
{
    auto* box = new wxComboBox(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                               wxCB_DROPDOWN, wxDefaultValidator, ToWx(name));
    PasteFirstLineOnly(*box);
    KeepTabOffArrow(*box);
    UseTextSize(*box, characters);
    return box;
}

int WidthForText(const wxControl& control, int characters)
{
    return control.GetSizeFromTextSize(control.GetTextExtent(wxString('n', characters)).x).x;
}

void UseTextSize(wxControl& box, int characters)
{
    const wxSize padding = box.FromDIP(wxSize(0, 4)); // the themes' smallest padding around a line
    box.SetMinSize(
        {WidthForText(box, characters), std::max(box.GetBestSize().y, box.GetCharHeight() + padding.y)});
}

wxListBox* NewListBox(wxWindow* parent, std::string_view name, long style)
{
    return new wxListBox(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                         style | wxLB_NEEDED_SB, wxDefaultValidator, ToWx(name));
}

wxStaticText* AddLabelled(wxSizer& row, wxWindow* parent, std::string_view labelName,
                          std::string_view caption, const std::function<wxWindow*()>& makeControl)
{
    wxStaticText* label = NewLabel(parent, labelName, caption);
    wxWindow* control = makeControl();
    row.Add(label, wxSizerFlags().CenterVertical().Border(wxRIGHT, Gap(parent)));
    row.Add(control, wxSizerFlags().CenterVertical().Border(wxRIGHT, 2 * Gap(parent)));
    return label;
}

wxStaticBoxSizer* NewFrame(wxWindow* parent, std::string_view name, std::string_view caption)
{
    auto* sizer = new wxStaticBoxSizer(wxVERTICAL, parent, ToWx(caption));
    sizer->GetStaticBox()->SetName(ToWx(name));
    return sizer;
}

int WithTextSize(const wxWindow& window, int pixels)
{
    constexpr int usualCharacterHeight = 17; // at 96 dots to the inch
    const int usual = window.FromDIP(usualCharacterHeight);
    return pixels * std::max(window.GetCharHeight(), usual) / usual;
}

void UseClientSizes(wxTopLevelWindow& window, wxSizer& layout, wxSize initial, wxSize smallest)
{
    const auto scaled = [&](wxSize size)
    {
        const wxSize pixels = window.FromDIP(size);
        return wxSize(WithTextSize(window, pixels.x), WithTextSize(window, pixels.y));
    };
    wxSize screen = wxGetClientDisplayRect().GetSize();
    screen.DecBy(window.GetSize() - window.GetClientSize());

    smallest = scaled(smallest);
    smallest.DecTo(screen);
    smallest.IncTo(layout.CalcMin());
    initial = scaled(initial);
    initial.DecTo(screen);
    initial.IncTo(smallest);
    window.SetMinClientSize(smallest);
    window.SetClientSize(initial);
}

void CloseByEscape(wxTopLevelWindow& window)
{
    window.Bind(wxEVT_CHAR_HOOK,
                [&window](wxKeyEvent& key)
                {
                    if (key.GetKeyCode() == WXK_ESCAPE && !IsKeyOfOpenList())
                        window.Close();
                    else
                        key.Skip();
                });
}

int Gap(const wxWindow* window)
{
    return window->FromDIP(6);
}
