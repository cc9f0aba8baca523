#pragma once

#include "data/Product.h"
#include "ui/controls/Messages.h"
#include "ui/controls/SaveDialog.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The texts of an export command.
struct ExportTexts
{
    std::string_view DialogTitle;
    std::string_view Success;
    std::string_view ErrorPrefix = {}; ///< If empty, errors in writing are not caught.
    std::string_view MessageTitle = ProductName;
    bool SuccessNamesFile = true; ///< Adds a line with the path.
    decltype(&ShowCritical) ShowError = ShowCritical;
};

/// Runs an export command: `proposeName` returns the file name to propose, or nothing to end the command; the
/// Save dialog asks for the path; `write` writes the file; a message reports success. If the user cancels,
/// nothing is written or shown.
///
/// With an error prefix, every exception of any type is reported after it. Without one, an exception before
/// the writing ends the command silently.
/// @throws what `write` throws, without an error prefix
void RunExport(wxWindow* parent, SaveDialogOptions& dialog, const ExportTexts& texts,
               const std::function<std::optional<std::string>()>& proposeName,
               const std::function<void(const std::string& path)>& write);
