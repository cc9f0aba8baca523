#include "ui/controls/LoadExportCommand.h"

#include "data/System.h"
#include "statistics/LoadExport.h"
#include "ui/controls/ExportCommand.h"
#include "ui/controls/SaveDialog.h"

void RunLoadExport(wxWindow* parent, const LoadExportTexts& texts,
                   const std::function<void(const std::string& path)>& write)
{
    SaveDialogOptions options;
    options.Title = texts.DialogTitle;
    options.InitialFolder = System::ProgramFolder();
    options.ProposedName = texts.ProposedName;
    const std::optional<std::string> chosen = ShowSaveDialog(parent, options);
    if (chosen && !chosen->empty())
        WriteAndTell(parent, WithCsvEnding(*chosen), write, texts.Success, "Izvoz završen");
}
