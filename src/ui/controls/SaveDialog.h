#pragma once

#include <functional>
#include <optional>
#include <string>

class wxWindow;

/// What a Save dialog shows and checks. All texts are UTF-8.
struct SaveDialogOptions
{
    std::string Title = {};
    std::string Filter = "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*";
    int FilterIndex = 1;                  ///< Counted from 1.
    std::string DefaultExtension = "csv"; ///< Added to a name that is typed without one.
    std::string InitialFolder = {};       ///< Empty: the folder of the last save.
    std::string ProposedName = {};
    bool OverwritePrompt = true; ///< Ask before an existing file is replaced.
    bool PathMustExist = true;   ///< Refuse a path where no file can be written, and ask again.

    /// Makes the name of the file to write of the chosen one; null when they are the same.
    std::string (*FileToWrite)(std::string chosen) = nullptr;
};

/// Asks where to save. The checks are about the file to write, whose path is returned; nothing when the user
/// cancels.
std::optional<std::string> ShowSaveDialog(wxWindow* parent, const SaveDialogOptions& options);

/// Notes that a file has been saved: its folder is the one of the last save, while the program runs.
void NoteSaved(const std::string& path);

/// Replaces the dialog and its checks in a test; an empty function brings them back.
using SaveDialogChooser = std::function<std::optional<std::string>(const SaveDialogOptions&)>;
void SetSaveDialogChooser(SaveDialogChooser chooser);

/// The path with ".csv" added, unless it ends so in upper or lower case.
std::string WithCsvEnding(std::string path);

/// The path without blanks at its ends.
std::string WithoutBlanksAround(std::string path);
