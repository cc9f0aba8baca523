#pragma once

#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/teaching_stats/TeachingLoadWindow.h"

class wxChoice;
class wxListBox;
class wxStaticText;

/// The teaching load of one lecturer: the courses, and the sums per semester and type.
class frmStatNositelji : public TeachingLoadWindow
{
public:
    explicit frmStatNositelji(wxWindow* parent);

private:
    wxSizer* NastavniciColumn();
    wxSizer* FilterRow();
    void Form_Load();

    LecturerFilter CurrentFilter() const;
    void ShowSelected();
    void ExportAll(const std::string& path) const override;

    // Controls
    wxStaticText* Label1;
    wxStaticText* Label2;
    wxStaticText* Label3;
    wxListBox* lstNastavnici;
    wxChoice* cboRazina;
    wxChoice* cboProgram;
};
