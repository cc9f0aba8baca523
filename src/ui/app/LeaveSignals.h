#pragma once

/// From now on the program leaves by the main window's close box when the system or a terminal asks it to
/// end. Open dialogs are cancelled first; a further request meanwhile is ignored.
void LeaveOnSignals();
