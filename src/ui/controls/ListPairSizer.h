#pragma once

#include <wx/sizer.h>

class ListView;

/// Lays out a list of courses and the list of their sums: side by side if the width is enough for the columns
/// of both, otherwise with the sums below. The sums are as high as their rows, at least six, and never push
/// the courses off the screen. The courses get the rest.
class ListPairSizer : public wxSizer
{
public:
    ListPairSizer(ListView* courses, ListView* sums);

    wxSize CalcMin() override;
    void RepositionChildren(const wxSize& minSize) override;

private:
    ListView* m_courses;
    ListView* m_sums;
};
