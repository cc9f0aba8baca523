#include "ui/startup/frmAbout.h"

#include "data/Product.h"
#include "data/modData.h"
#include "ui/controls/Controls.h"
#include "ui/controls/SpokenName.h"
#include "ui/controls/Strings.h"

#include <wx/button.h>
#include <wx/cursor.h>
#include <wx/datetime.h>
#include <wx/log.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <string_view>
#include <utility>

namespace
{

constexpr std::string_view Author = "Varlostudiji tim";
constexpr std::string_view WebAddress = "https://varlostudiji.example";
constexpr std::string_view EmailAddress = "podrska@varlostudiji.example";

constexpr int TitlePoints = 14;
const wxColour LinkColour(0, 0, 255);

std::function<bool(const std::string&)> LinkOpener;

/// Hands an address to the system. A system without a browser or mail program is no error worth a message.
void OpenLink(const std::string& address)
{
    const wxLogNull silence;
    if (LinkOpener)
        LinkOpener(address);
    else
        wxLaunchDefaultBrowser(ToWx(address));
}

} // namespace

frmAbout::frmAbout(wxWindow* parent)
{
    Create(parent, wxID_ANY, "About " + ToWx(ProductName), wxDefaultPosition, wxDefaultSize,
           wxDEFAULT_DIALOG_STYLE, "frmAbout");
    UseProgramLook(*this);

    const std::string version(ProductVersion);
    const std::string email(EmailAddress);
    auto* column = new wxBoxSizer(wxVERTICAL);
    lblTitle = AddLabel(*column, "lblTitle", std::string(ProductName));
    wxFont titleFont = GetFont().Bold();
    titleFont.SetPointSize(TitlePoints);
    lblTitle->SetFont(titleFont);
    lblVersion = AddLabel(*column, "lblVersion", "Verzija " + version);
    lblAuthor = AddLabel(*column, "lblAuthor", "Autor: " + std::string(Author));
    lblDescription = AddLabel(*column, "lblDescription", AboutDescription(wxDateTime::Now().GetYear()));
    lblPathData = AddLabel(*column, "lblPathData", "Baza: " + modData::GetDataFolder());
    lblWeb = AddLink(*column, "lblWeb", std::string(WebAddress), std::string(WebAddress));
    lblEmail = AddLink(*column, "lblEmail", email, "mailto:" + email);

    cmdOk = NewButton(this, "cmdOk", "OK");
    cmdOk->SetDefault();
    cmdOk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_OK); });
    SetEscapeId(cmdOk->GetId());
    column->Add(cmdOk, wxSizerFlags().Right().Border(wxTOP, 2 * Gap(this)));

    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, 3 * Gap(this)));
    SetSizerAndFit(margin);
    CentreOnParent();
    cmdOk->SetFocus();
    Bind(wxEVT_MOTION, [](wxMouseEvent&) { wxSetCursor(wxNullCursor); });
}

wxStaticText* frmAbout::AddLabel(wxSizer& sizer, const char* name, const std::string& text)
{
    // A folder or an address may hold an "&", which is a letter here and no access key.
    wxStaticText* label = NewRemark(this, name, ToUtf8(wxControl::EscapeMnemonics(ToWx(text))));
    sizer.Add(label, wxSizerFlags().Border(wxBOTTOM, Gap(this)));
    return label;
}

wxStaticText* frmAbout::AddLink(wxSizer& sizer, const char* name, const std::string& text,
                                const std::string& address)
{
    wxStaticText* label = AddLabel(sizer, name, text);
    label->SetForegroundColour(LinkColour);
    label->SetFont(label->GetFont().Underlined());
    label->Bind(wxEVT_LEFT_DOWN, [address](wxMouseEvent&) { OpenLink(address); });
    // The plain arrow on purpose, no hand.
    label->Bind(wxEVT_MOTION, [](wxMouseEvent&) { wxSetCursor(wxCursor(wxCURSOR_ARROW)); });
    return label;
}

std::string AboutDescription(int year)
{
    return "Aplikacija za upravljanje kolegijima, nositeljima i statistikama.\r\n"
           "Razina: Preddiplomski i Diplomski studij.\r\n"
           "© " +
           std::to_string(year) + " " + std::string(ProductName);
}

void SetLinkOpener(std::function<bool(const std::string& address)> opener)
{
    LinkOpener = std::move(opener);
}
