#include "ui/controls/ExportCommand.h"

#include "ui/controls/Strings.h"

#include <wx/strconv.h>

#include <exception>

namespace
{

/// The description of the exception being handled.
std::string ErrorDescription()
{
    try
    {
        throw;
    }
    catch (const std::exception& error)
    {
        return ToUtf8(wxString(error.what(), wxConvWhateverWorks)); // a library's text may be in any encoding
    }
    catch (...)
    {
        return "Neočekivana greška.";
    }
}

std::optional<std::string> ChoosePath(wxWindow* parent, SaveDialogOptions& dialog, const ExportTexts& texts,
                                      const std::function<std::optional<std::string>()>& proposeName)
{
    const std::optional<std::string> name = proposeName();
    if (!name)
        return std::nullopt;
    dialog.Title = texts.DialogTitle;
    dialog.ProposedName = *name;
    return ShowSaveDialog(parent, dialog);
}

} // namespace

void RunExport(wxWindow* parent, SaveDialogOptions& dialog, const ExportTexts& texts,
               const std::function<std::optional<std::string>()>& proposeName,
               const std::function<void(const std::string& path)>& write)
{
    const bool trapsErrors = !texts.ErrorPrefix.empty();
    bool isWriting = false;
    try
    {
        const std::string path = ChoosePath(parent, dialog, texts, proposeName).value_or("");
        if (path.empty())
            return;
        isWriting = true;
        write(path);
        NoteSaved(path);
        const std::string success(texts.Success);
        ShowInformation(parent, texts.SuccessNamesFile ? success + "\r\n" + path : success,
                        texts.MessageTitle);
    }
    catch (...)
    {
        if (trapsErrors)
            texts.ShowError(parent, std::string(texts.ErrorPrefix) + ErrorDescription(), texts.MessageTitle);
        else if (isWriting)
            throw;
    }
}
