#pragma once

/// Makes the program close its main window when the system or a terminal asks it to end. Open dialogs are
/// cancelled first; further requests meanwhile are ignored.
void LeaveOnSignals();
