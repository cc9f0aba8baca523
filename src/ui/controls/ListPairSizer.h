#pragma once

#include <wx/sizer.h>

class ListView;

/// Lays out a list of courses and the list of their sums. They are side by side where the width is enough for
/// the columns of both; otherwise the sums are below. The sums are as high as their rows, at least six, and
/// never push the courses out of sight; the courses take the rest.
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
