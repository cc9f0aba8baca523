#include "ui/app/LeaveSignals.h"

void LeaveOnSignals()
{
    // Windows ends a session by messages; the toolkit closes the main window for them.
}
