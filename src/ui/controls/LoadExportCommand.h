#pragma once

#include <functional>
#include <string>
#include <string_view>

class wxWindow;

/// What the "E&xport" command of a statistics window asks and says.
struct LoadExportTexts
{
    std::string_view DialogTitle;
    std::string_view ProposedName;
    std::string_view Success;
};

/// Asks for a path, beginning in the program's own folder, sees to it that it ends in ".csv", writes by
/// `write` and says where. Nothing when the user cancels. An error in writing goes uncaught.
/// @throws what `write` throws
void RunLoadExport(wxWindow* parent, const LoadExportTexts& texts,
                   const std::function<void(const std::string& path)>& write);
