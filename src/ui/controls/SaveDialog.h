#pragma once

#include <functional>
#include <optional>
#include <string>

class wxWindow;

/// What a Save dialog is to show and to check. All texts are UTF-8.
struct SaveDialogOptions
{
    std::string Title;
    std::string Filter = "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*";
    int FilterIndex = 1;                  ///< Counted from 1.
    std::string DefaultExtension = "csv"; ///< Put behind a name that is typed without one.
    std::string InitialFolder;            ///< Empty: where the dialog last was.
    std::string ProposedName;
    bool OverwritePrompt = true;
    bool PathMustExist = true;
};

/// Asks where to save; nothing when the user cancels.
std::optional<std::string> ShowSaveDialog(wxWindow* parent, const SaveDialogOptions& options);

/// Answers in the dialog's stead, for tests; an empty function brings the dialog back.
using SaveDialogChooser = std::function<std::optional<std::string>(const SaveDialogOptions&)>;
void SetSaveDialogChooser(SaveDialogChooser chooser);
