#include "ui/controls/SaveDialog.h"

#include "data/Files.h"
#include "text/Text.h"
#include "ui/controls/Messages.h"
#include "ui/controls/Strings.h"

#include <wx/filedlg.h>
#include <wx/filename.h>

#include <algorithm>
#include <exception>
#include <string_view>
#include <utility>

namespace
{

SaveDialogChooser Chooser;

wxString FolderOfLastSave; // empty before the first

/// The folder in which the dialog opens; empty for the system's choice.
wxString FirstFolder(const SaveDialogOptions& options)
{
    if (!options.InitialFolder.empty())
        return ToWx(options.InitialFolder);
    return wxFileName::DirExists(FolderOfLastSave) ? FolderOfLastSave : wxString();
}

/// A file name that is valid on every system: "_" replaces each forbidden character.
std::string AsFileName(std::string text)
{
    const auto isForbidden = [](char c)
    { return ForbiddenInFileNames.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' '; };
    std::ranges::replace_if(text, isForbidden, '_');
    return text;
}

wxString NameIn(const wxString& path)
{
    return path.AfterLast(wxFILE_SEP_PATH);
}

/// Adds the default extension, which some systems' dialogs do not add. Every name with a dot has an
/// extension, even ".csv".
std::string WithDefaultExtension(const wxString& path, const std::string& extension)
{
    const bool addExtension = !NameIn(path).Contains(".") && !extension.empty();
    return ToUtf8(path) + (addExtension ? "." + extension : "");
}

std::string FileToWrite(const std::string& chosen, const SaveDialogOptions& options)
{
    return options.FileToWrite == nullptr || chosen.empty() ? chosen : options.FileToWrite(chosen);
}

/// True if a file can be written there; otherwise tells the user why not.
bool CanWrite(wxWindow* parent, const std::string& path)
{
    try
    {
        CheckWritable(path);
        return true;
    }
    catch (const std::exception& error)
    {
        ShowWarning(parent,
                    std::string("Ovdje se ne može spremiti. Odaberite drugu mapu ili drugo ime.\r\n") +
                        error.what());
        return false;
    }
}

bool MayReplace(wxWindow* parent, const std::string& path)
{
    return !wxFileName::Exists(ToWx(path)) ||
           AskYesNo(parent, "Datoteka već postoji. Želite li je zamijeniti?\r\n" + path, "Potvrda");
}

bool Accepts(wxWindow* parent, const std::string& path, const SaveDialogOptions& options)
{
    return (!options.PathMustExist || CanWrite(parent, path)) &&
           (!options.OverwritePrompt || MayReplace(parent, path));
}

/// Shows the system's dialog once; the result is empty if the user cancels. The dialog itself neither checks
/// the path nor asks about an existing file, since only the program knows the name of the file to write.
wxString Choose(wxWindow* parent, const SaveDialogOptions& options, const wxString& folder,
                const wxString& name)
{
    const bool isPath = name.Contains(wxFILE_SEP_PATH);
    wxFileDialog dialog(parent, ToWx(options.Title), folder, isPath ? name : wxString(), ToWx(options.Filter),
                        wxFD_SAVE);
    dialog.SetFilterIndex(options.FilterIndex - 1);
    if (!isPath) // the constructor would add an extension to ".csv"
        dialog.SetFilename(name);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

} // namespace

std::optional<std::string> ShowSaveDialog(wxWindow* parent, const SaveDialogOptions& options)
{
    if (Chooser)
    {
        const std::optional<std::string> chosen = Chooser(options);
        return chosen ? std::optional(FileToWrite(*chosen, options)) : std::nullopt;
    }

    wxString folder = FirstFolder(options);
    wxString name = ToWx(AsFileName(options.ProposedName));
    for (;;)
    {
        const wxString chosen = Choose(parent, options, folder, name);
        if (chosen.empty())
            return std::nullopt;
        const std::string path = FileToWrite(WithDefaultExtension(chosen, options.DefaultExtension), options);
        if (Accepts(parent, path, options))
            return path;
        // Propose the same again. The dialog cannot open a missing folder, so its path becomes part of the
        // name.
        const bool isFolderThere = wxFileName::DirExists(wxPathOnly(chosen));
        folder = isFolderThere ? wxPathOnly(chosen) : wxString();
        name = isFolderThere ? NameIn(chosen) : chosen;
    }
}

void NoteSaved(const std::string& path)
{
    FolderOfLastSave = wxPathOnly(ToWx(path));
}

void SetSaveDialogChooser(SaveDialogChooser chooser)
{
    Chooser = std::move(chooser);
}

std::string WithCsvEnding(std::string path)
{
    constexpr std::string_view ending = ".CSV";
    if (path.size() < ending.size() || UpperCase(path.substr(path.size() - ending.size())) != ending)
        path += ".csv";
    return path;
}

// Its type is that of the option.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
std::string WithoutBlanksAround(std::string path)
{
    return std::string(TrimBlanks(path));
}
