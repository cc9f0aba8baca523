#pragma once

#include "ui/controls/ListView.h"

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include <iterator>
#include <string>

#ifdef _WIN32
#include <oleacc.h>
#else
#include "ui/controls/NativeFunction_gtk.h"
#endif

// The name that screen readers read for a control, asked in the same way as they ask.

/// The window that screen readers see for a control; for a list, the list inside.
inline wxWindow* SpokenWindow(wxWindow* control)
{
    return dynamic_cast<ListView*>(control) != nullptr ? control->GetChildren().front() : control;
}

#ifdef _WIN32

/// The name from a window's accessible object.
inline std::string AccessibleName(HWND window)
{
    void* found = nullptr;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &found)))
        return {};
    auto* accessible = static_cast<IAccessible*>(found);
    VARIANT self;
    VariantInit(&self);
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR text = nullptr;
    std::string name;
    if (accessible->get_accName(self, &text) == S_OK && text != nullptr)
        name = wxString(text).utf8_string();
    SysFreeString(text);
    accessible->Release();
    return name;
}

/// Fields and lists without an accessible object get their name from the label right before them. This is
/// Windows's rule; some systems that run Windows programs do not implement it.
inline std::string AccessibleName(wxWindow* control)
{
    wxWindow* window = SpokenWindow(control);
    const bool isNamed =
        dynamic_cast<wxButton*>(control) != nullptr || dynamic_cast<wxRadioButton*>(control) != nullptr ||
        dynamic_cast<wxStaticText*>(control) != nullptr || window->GetAccessible() != nullptr;
    if (isNamed)
        return AccessibleName(window->GetHWND());
    const HWND before = GetWindow(window->GetHWND(), GW_HWNDPREV);
    wchar_t type[16] = L"";
    GetClassNameW(before, type, static_cast<int>(std::size(type)));
    if (_wcsicmp(type, L"Static") != 0)
        return {};
    wchar_t text[200] = L"";
    GetWindowTextW(before, text, static_cast<int>(std::size(text)));
    return wxString(text).utf8_string();
}

#else

/// True for a frame's caption, which names the group and no control.
inline bool IsFrameCaption(void* label)
{
    void* parent = NativeFunction<void* (*)(void*)>("gtk_widget_get_parent")(label);
    const std::string type = NativeFunction<const char* (*)(void*)>("g_type_name_from_instance")(parent);
    return type.ends_with("Frame");
}

/// The texts of the labels that belong to a widget, joined by ", ".
inline std::string LabelsOfWidget(void* widget)
{
    struct List // as GLib has it
    {
        void* Data;
        List* Next;
        List* Previous;
    };
    auto* labels = NativeFunction<List* (*)(void*)>("gtk_widget_list_mnemonic_labels")(widget);
    std::string texts;
    for (const List* label = labels; label != nullptr; label = label->Next)
        if (!IsFrameCaption(label->Data))
            texts.append(texts.empty() ? "" : ", ")
                .append(NativeFunction<const char* (*)(void*)>("gtk_label_get_text")(label->Data));
    NativeFunction<void (*)(List*)>("g_list_free")(labels);
    return texts;
}

/// The name of a widget itself, from the accessibility toolkit.
inline std::string NameOfWidget(void* widget)
{
    void* accessible = NativeFunction<void* (*)(void*)>("gtk_widget_get_accessible")(widget);
    const char* name = NativeFunction<const char* (*)(void*)>("atk_object_get_name")(accessible);
    return name == nullptr ? "" : name;
}

/// Screen readers read the labels of a control; the control's own name if it has no label.
inline std::string AccessibleName(wxWindow* control)
{
    wxWindow* window = SpokenWindow(control);
    for (void* widget :
         {static_cast<void*>(window->GetConnectWidget()), static_cast<void*>(window->m_widget)})
        if (std::string labels = LabelsOfWidget(widget); !labels.empty())
            return labels;
    return NameOfWidget(window->GetConnectWidget());
}

#endif
