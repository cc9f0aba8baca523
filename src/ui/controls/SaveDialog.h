#pragma once

#include <functional>
#include <optional>
#include <string>

class wxWindow;

/// The settings of a Save dialog. All texts are UTF-8.
struct SaveDialogOptions
{
    std::string Title = {};
    std::string Filter = "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*";
    int FilterIndex = 1;                  ///< Counted from 1.
    std::string DefaultExtension = "csv"; ///< Added to a typed name without an extension.
    std::string InitialFolder = {};       ///< If empty, the folder of the last save.
    std::string ProposedName = {};
    bool OverwritePrompt = true; ///< Ask before an existing file is replaced.
    bool PathMustExist = true;   ///< Refuse a path where no file can be written, and ask again.

    /// Makes the path of the file to write from the chosen one; null if they are the same.
    std::string (*FileToWrite)(std::string chosen) = nullptr;
};

/// Asks where to save, and returns the path of the file to write; nothing if the user cancels. The checks are
/// about that file.
std::optional<std::string> ShowSaveDialog(wxWindow* parent, const SaveDialogOptions& options);

/// Remembers a saved file's folder as the folder of the last save, until the program ends.
void NoteSaved(const std::string& path);

/// Test hook: replaces the dialog and its checks; an empty function restores them.
using SaveDialogChooser = std::function<std::optional<std::string>(const SaveDialogOptions&)>;
void SetSaveDialogChooser(SaveDialogChooser chooser);

/// The path with ".csv" added, unless it already ends in it, in upper or lower case.
std::string WithCsvEnding(std::string path);

/// The path without blanks at both ends.
std::string WithoutBlanksAround(std::string path);
