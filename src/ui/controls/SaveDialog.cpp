#include "ui/controls/SaveDialog.h"

#include "data/Files.h"
#include "ui/controls/Messages.h"
#include "ui/controls/Strings.h"

#include <wx/filedlg.h>

#include <filesystem>
#include <utility>

namespace
{

SaveDialogChooser Chooser;

std::string WithDefaultExtension(std::string path, const std::string& extension)
{
    if (!ToPath(path).has_extension() && !extension.empty())
        path += "." + extension;
    return path;
}

/// Some systems' dialogs leave the extension to the program, and so have not asked about the file it names.
bool MayReplace(wxWindow* parent, const std::string& path, const std::string& chosen)
{
    return path == chosen || !std::filesystem::exists(ToPath(path)) ||
           AskYesNo(parent, "Datoteka već postoji. Želite li je zamijeniti?\r\n" + path, "Potvrda");
}

} // namespace

std::optional<std::string> ShowSaveDialog(wxWindow* parent, const SaveDialogOptions& options)
{
    if (Chooser)
        return Chooser(options);

    const long style = wxFD_SAVE | (options.OverwritePrompt ? wxFD_OVERWRITE_PROMPT : 0);
    wxFileDialog dialog(parent, ToWx(options.Title), ToWx(options.InitialFolder), ToWx(options.ProposedName),
                        ToWx(options.Filter), style);
    dialog.SetFilterIndex(options.FilterIndex - 1);
    while (dialog.ShowModal() == wxID_OK)
    {
        const std::string chosen = ToUtf8(dialog.GetPath());
        const std::string path = WithDefaultExtension(chosen, options.DefaultExtension);
        if (!options.OverwritePrompt || MayReplace(parent, path, chosen))
            return path;
    }
    return std::nullopt;
}

void SetSaveDialogChooser(SaveDialogChooser chooser)
{
    Chooser = std::move(chooser);
}
