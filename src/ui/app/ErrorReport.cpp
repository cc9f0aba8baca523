#include "ui/app/ErrorReport.h"

#include "data/Errors.h"
#include "ui/controls/Messages.h"

#include <cstdlib>
#include <string>

namespace
{

/// The error being handled, as the user is told of it.
std::string CurrentErrorText()
{
    try
    {
        throw;
    }
    catch (const RuntimeError& error)
    {
        return "Greška " + std::to_string(error.Number()) + ": " + error.Description();
    }
    catch (const std::exception& error)
    {
        return "Neočekivana greška: " + std::string(error.what());
    }
    catch (...)
    {
        return "Neočekivana greška.";
    }
}

} // namespace

void ReportErrorAndExit()
{
    ShowCritical(nullptr, CurrentErrorText());
    // At once: the windows still open must neither save nor ask anything.
    std::_Exit(EXIT_FAILURE);
}
