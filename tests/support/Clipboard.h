#pragma once

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <memory>
#include <stdexcept>
#include <string>

/// Puts a text (UTF-8) on the system's clipboard with its line breaks unchanged; the toolkit would change
/// them to the system's.
inline void PutOnClipboard(const std::string& text, bool primary = false)
{
#ifdef _WIN32
    const std::wstring native = wxString::FromUTF8(text).ToStdWstring();
#else
    const std::string& native = text;
#endif
    auto data = std::make_unique<wxCustomDataObject>(wxDataFormat(wxDF_UNICODETEXT));
    data->SetData((native.size() + 1) * sizeof(native.front()), native.c_str());
    wxTheClipboard->UsePrimarySelection(primary);
    const wxClipboardLocker lock;
    const bool put = !!lock && wxTheClipboard->SetData(data.release());
    wxTheClipboard->UsePrimarySelection(false);
    if (!put)
        throw std::runtime_error("no clipboard");
}

/// The text (UTF-8) on the system's clipboard with its line breaks unchanged; "none" if there is none.
inline std::string TextOnClipboard()
{
    const wxClipboardLocker lock;
    wxCustomDataObject data{wxDataFormat(wxDF_UNICODETEXT)};
    if (!lock || !wxTheClipboard->GetData(data))
        return "none";
#ifdef _WIN32
    const auto* text = static_cast<const wchar_t*>(data.GetData());
    const wxString whole(text, data.GetSize() / sizeof(wchar_t));
#else
    const wxString whole = wxString::FromUTF8(static_cast<const char*>(data.GetData()), data.GetSize());
#endif
    return whole.BeforeFirst('\0').utf8_string(); // some systems end it with a zero
}
