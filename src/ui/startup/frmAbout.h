#pragma once

#include <wx/dialog.h>

#include <functional>
#include <string>

class wxButton;
class wxSizer;
class wxStaticText;

/// What the program is, who made it, where its data lies, and two links.
class frmAbout : public wxDialog
{
public:
    explicit frmAbout(wxWindow* parent);

private:
    wxStaticText* AddLabel(wxSizer& sizer, const char* name, const std::string& text);
    wxStaticText* AddLink(wxSizer& sizer, const char* name, const std::string& text,
                          const std::string& address);

    // Controls
    wxStaticText* lblTitle;
    wxStaticText* lblVersion;
    wxStaticText* lblAuthor;
    wxStaticText* lblDescription;
    wxStaticText* lblPathData;
    wxStaticText* lblWeb;
    wxStaticText* lblEmail;
    wxButton* cmdOk;
};

/// The three lines that describe the program, with the year of the notice, separated by CR LF.
std::string AboutDescription(int year);

/// Opens a link in the system's stead, for tests, and answers whether it could; an empty function brings the
/// system back.
void SetLinkOpener(std::function<bool(const std::string& address)> opener);
