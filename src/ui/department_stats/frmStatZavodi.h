#pragma once

#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/teaching_stats/TeachingLoadWindow.h"

class wxChoice;
class wxListBox;
class wxStaticText;

/// The teaching load of one department: the courses of its lecturers, and the sums per semester and type.
class frmStatZavodi : public TeachingLoadWindow
{
public:
    explicit frmStatZavodi(wxWindow* parent);

private:
    wxSizer* FilterRow();
    wxSizer* SemestriColumn();
    void Form_Load();

    DepartmentFilter CurrentFilter() const;
    void ShowSelected();
    void ExportAll(const std::string& path) const override;

    // Controls
    wxStaticText* Label1;
    wxStaticText* Label2;
    wxStaticText* Label3;
    wxChoice* cboRazina;
    wxChoice* cboZavodi;
    wxListBox* lstSemestri;
};
