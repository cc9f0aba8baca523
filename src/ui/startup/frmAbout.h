#pragma once

#include <wx/dialog.h>

#include <functional>
#include <string>

class wxButton;
class wxSizer;
class wxStaticText;

/// The About box: the program and its authors, the data folder, and two links.
class frmAbout : public wxDialog
{
public:
    explicit frmAbout(wxWindow* parent);

private:
    wxStaticText* AddLabel(wxSizer& sizer, const char* name, const std::string& text = {});
    wxStaticText* AddLink(wxSizer& sizer, const char* name, const std::string& text);
    void BindEvents();

    void Form_Load();
    void Form_MouseMove();
    void lblWeb_Click();
    void lblWeb_MouseMove();
    void lblEmail_Click();
    void lblEmail_MouseMove();
    void cmdOk_Click();

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

/// Test hook: replaces the launch of the browser or mail program; an empty function restores it.
void SetLinkOpener(std::function<void(const std::string& address)> opener);

/// Test hook: replaces the system's date as the source of the current year; an empty function restores it.
void SetYearSource(std::function<int()> source);
