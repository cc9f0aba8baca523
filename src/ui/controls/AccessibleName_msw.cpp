// Accessible names on Windows: an accessible object that answers only for the name.

#include "ui/controls/AccessibleName.h"

#include "ui/controls/Controls.h"
#include "ui/controls/Strings.h"

#include <wx/access.h>
#include <wx/window.h>

#include <utility>

namespace
{

class NamedAccessible : public wxAccessible
{
public:
    NamedAccessible(wxWindow* control, wxString name) : wxAccessible(control), m_name(std::move(name)) {}

    wxAccStatus GetName(int child, wxString* name) override
    {
        if (child != wxACC_SELF)
            return wxACC_NOT_IMPLEMENTED; // the system answers
        *name = m_name;
        return wxACC_OK;
    }

private:
    wxString m_name;
};

} // namespace

void SetAccessibleName(wxWindow& control, std::string_view name)
{
    control.SetAccessible(new NamedAccessible(&control, ToWx(name)));
}

wxStaticText* NewCaption(wxWindow* parent, std::string_view name, std::string_view caption)
{
    return NewLabel(parent, name, caption); // the control after it has an accessible name
}
