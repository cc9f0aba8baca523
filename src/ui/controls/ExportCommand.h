#pragma once

#include "data/Product.h"
#include "ui/controls/Messages.h"
#include "ui/controls/SaveDialog.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What an export command asks and says, and whether it traps errors.
struct ExportTexts
{
    std::string_view DialogTitle;
    std::string_view Success;
    std::string_view ErrorPrefix = {}; ///< Empty: an error in writing goes uncaught.
    std::string_view MessageTitle = ProductName;
    bool SuccessNamesFile = true; ///< The path follows on a line of its own.
    decltype(&ShowCritical) ShowError = ShowCritical;
};

/// Runs an export command: `proposeName` gives the file name to propose, or nothing to end the command; the
/// Save dialog asks for the path; `write` writes the file, and a message says so. Nothing is written or said
/// when the user cancels.
///
/// Every exception, of any type, is reported after the error prefix. Without a prefix one in asking ends the
/// command silently.
/// @throws what `write` throws, without an error prefix
void RunExport(wxWindow* parent, SaveDialogOptions& dialog, const ExportTexts& texts,
               const std::function<std::optional<std::string>()>& proposeName,
               const std::function<void(const std::string& path)>& write);
