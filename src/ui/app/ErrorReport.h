#pragma once

/// The last resort for an error that nothing has caught; called while it is being handled. Writes unsaved
/// changes to a folder of their own, shows the error's number and description and that folder, and ends the
/// program with exit code 1. The catalogue's files stay as they are.
[[noreturn]] void ReportErrorAndExit();
