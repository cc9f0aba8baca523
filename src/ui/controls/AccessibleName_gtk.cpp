// Accessible names on GTK.

#include "ui/controls/AccessibleName.h"

#include "ui/controls/NativeFunction_gtk.h"
#include "ui/controls/Strings.h"

#include <wx/stattext.h>

namespace
{

class Caption : public wxStaticText
{
public:
    using wxStaticText::wxStaticText;

protected:
    bool GTKWidgetNeedsMnemonic() const override { return false; }
};

} // namespace

void SetAccessibleName(wxWindow& control, std::string_view name)
{
    const auto accessibleOf = NativeFunction<void* (*)(GtkWidget*)>("gtk_widget_get_accessible");
    const auto setName = NativeFunction<void (*)(void*, const char*)>("atk_object_set_name");
    if (accessibleOf != nullptr && setName != nullptr)
        setName(accessibleOf(control.GetConnectWidget()), ToWx(name).utf8_str());
}

wxStaticText* NewCaption(wxWindow* parent, std::string_view name, std::string_view caption)
{
    return new Caption(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize, 0, ToWx(name));
}
