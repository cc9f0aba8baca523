// Names for screen readers on GTK.

#include "ui/controls/SpokenName.h"

#include "ui/controls/Strings.h"

#include <wx/dynlib.h>
#include <wx/stattext.h>

namespace
{

/// A function of GTK or ATK, found in the running program, so that building needs neither's headers.
template<typename Function>
Function NativeFunction(const char* name)
{
    return reinterpret_cast<Function>(
        wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

class Remark : public wxStaticText
{
public:
    using wxStaticText::wxStaticText;

protected:
    bool GTKWidgetNeedsMnemonic() const override { return false; }
};

} // namespace

void SetSpokenName(wxWindow& control, std::string_view name)
{
    const auto accessibleOf = NativeFunction<void* (*)(GtkWidget*)>("gtk_widget_get_accessible");
    const auto setName = NativeFunction<void (*)(void*, const char*)>("atk_object_set_name");
    if (accessibleOf != nullptr && setName != nullptr)
        setName(accessibleOf(control.GetConnectWidget()), ToWx(name).utf8_str());
}

wxStaticText* NewRemark(wxWindow* parent, std::string_view name, std::string_view caption)
{
    return new Remark(parent, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize, 0, ToWx(name));
}
