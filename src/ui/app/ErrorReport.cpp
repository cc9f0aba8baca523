#include "ui/app/ErrorReport.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "ui/controls/Messages.h"

#include <cstdlib>
#include <string>

namespace
{

/// Keeps unsaved changes, and says where they are.
std::string UnsavedChangesText()
{
    const modData::UnsavedChanges changes = modData::KeepUnsavedChanges();
    if (!changes.Exist)
        return "";
    if (changes.Folder.empty())
        return "\r\n\r\nPromjene koje nisu spremljene nije bilo moguće zapisati.";
    return "\r\n\r\nPromjene koje nisu spremljene zapisane su u mapu:\r\n" + changes.Folder;
}

std::string NumberAndText(const RuntimeError& error)
{
    return "Greška " + std::to_string(error.Number()) + ": " + error.what();
}

/// The text for the error being handled, and for unsaved changes.
std::string CurrentErrorText()
{
    try
    {
        throw;
    }
    catch (const SaveNotFinished& error)
    {
        return NumberAndText(error); // the changes are already on disk
    }
    catch (const RuntimeError& error)
    {
        return NumberAndText(error) + UnsavedChangesText();
    }
    catch (const std::exception& error)
    {
        return "Neočekivana greška: " + std::string(error.what()) + UnsavedChangesText();
    }
    catch (...)
    {
        return "Neočekivana greška." + UnsavedChangesText();
    }
}

} // namespace

void ReportErrorAndExit()
{
    ShowCritical(nullptr, CurrentErrorText());
    // Without closing the windows: they must neither save nor ask anything now.
    std::_Exit(EXIT_FAILURE);
}
