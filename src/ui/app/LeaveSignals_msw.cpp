#include "ui/app/LeaveSignals.h"

void LeaveOnSignals()
{
    // Windows ends a session by messages, which the toolkit takes to the close box.
}
