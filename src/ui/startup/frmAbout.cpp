#include "ui/startup/frmAbout.h"

#include "data/Product.h"
#include "data/modData.h"
#include "ui/controls/AccessibleName.h"
#include "ui/controls/Controls.h"
#include "ui/controls/ReadableColour.h"
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

std::function<void(const std::string&)> LinkOpener;
std::function<int()> YearSource;

/// Asks the system to open an address. A failure shows no message: the system may have no browser or mail
/// program.
void OpenLink(const std::string& address)
{
    const wxLogNull silence;
    if (LinkOpener)
        LinkOpener(address);
    else
        wxLaunchDefaultBrowser(ToWx(address));
}

int CurrentYear()
{
    return YearSource ? YearSource() : wxDateTime::Now().GetYear();
}

/// Shows a text unchanged: an "&" in a path or an address is not an access key.
void SetText(wxStaticText& label, const std::string& text)
{
    label.SetLabel(wxControl::EscapeMnemonics(ToWx(text)));
}

} // namespace

frmAbout::frmAbout(wxWindow* parent)
{
    Create(parent, wxID_ANY, "About " + ToWx(ProductName), wxDefaultPosition, wxDefaultSize,
           wxDEFAULT_DIALOG_STYLE, "frmAbout");
    ApplyAppStyle(*this);

    auto* column = new wxBoxSizer(wxVERTICAL);
    lblTitle = AddLabel(*column, "lblTitle");
    lblVersion = AddLabel(*column, "lblVersion");
    lblAuthor = AddLabel(*column, "lblAuthor");
    lblDescription = AddLabel(*column, "lblDescription");
    lblPathData = AddLabel(*column, "lblPathData");
    lblWeb = AddLink(*column, "lblWeb", std::string(WebAddress));
    lblEmail = AddLink(*column, "lblEmail", std::string(EmailAddress));
    cmdOk = NewButton(this, "cmdOk", "OK");
    cmdOk->SetDefault();
    SetEscapeId(cmdOk->GetId());
    column->Add(cmdOk, wxSizerFlags().Right().Border(wxTOP, 2 * Gap(this)));

    Form_Load(); // before the layout: the texts decide the size
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, 3 * Gap(this)));
    SetSizerAndFit(margin);
    CentreOnParent();
    cmdOk->SetFocus();
    BindEvents();
}

wxStaticText* frmAbout::AddLabel(wxSizer& sizer, const char* name, const std::string& text)
{
    wxStaticText* label = NewCaption(this, name, "");
    SetText(*label, text);
    sizer.Add(label, wxSizerFlags().Border(wxBOTTOM, Gap(this)));
    return label;
}

wxStaticText* frmAbout::AddLink(wxSizer& sizer, const char* name, const std::string& text)
{
    wxStaticText* label = AddLabel(sizer, name, text);
    label->SetForegroundColour(ReadableColour(LinkColour, wxSYS_COLOUR_BTNFACE));
    label->SetFont(label->GetFont().Underlined());
    return label;
}

void frmAbout::BindEvents()
{
    Bind(wxEVT_MOTION, [this](wxMouseEvent&) { Form_MouseMove(); });
    lblWeb->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { lblWeb_Click(); });
    lblWeb->Bind(wxEVT_MOTION, [this](wxMouseEvent&) { lblWeb_MouseMove(); });
    lblEmail->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent&) { lblEmail_Click(); });
    lblEmail->Bind(wxEVT_MOTION, [this](wxMouseEvent&) { lblEmail_MouseMove(); });
    cmdOk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdOk_Click(); });
}

void frmAbout::Form_Load()
{
    const std::string product(ProductName);
    SetText(*lblTitle, product);
    wxFont titleFont = GetFont().Bold();
    titleFont.SetPointSize(TitlePoints);
    lblTitle->SetFont(titleFont);
    SetText(*lblVersion, "Verzija " + std::string(ProductVersion));
    SetText(*lblAuthor, "Autor: " + std::string(Author));
    SetText(*lblPathData, "Baza: " + modData::GetDataFolder());
    SetText(*lblDescription, "Aplikacija za upravljanje kolegijima, nositeljima i statistikama.\r\n"
                             "Razina: Preddiplomski i Diplomski studij.\r\n"
                             "© " +
                                 std::to_string(CurrentYear()) + " " + product);
}

void frmAbout::Form_MouseMove()
{
    wxSetCursor(wxNullCursor);
}

void frmAbout::lblWeb_Click()
{
    OpenLink(std::string(WebAddress));
}

void frmAbout::lblWeb_MouseMove()
{
    wxSetCursor(*wxSTANDARD_CURSOR); // the plain arrow on purpose, not the hand
}

void frmAbout::lblEmail_Click()
{
    OpenLink("mailto:" + ToUtf8(lblEmail->GetLabelText()));
}

void frmAbout::lblEmail_MouseMove()
{
    wxSetCursor(*wxSTANDARD_CURSOR);
}

void frmAbout::cmdOk_Click()
{
    EndModal(wxID_OK);
}

void SetLinkOpener(std::function<void(const std::string& address)> opener)
{
    LinkOpener = std::move(opener);
}

void SetYearSource(std::function<int()> source)
{
    YearSource = std::move(source);
}
