#pragma once

/// The last resort for an error that nothing has caught, called while it is being handled: tells the user its
/// number and description, and ends the program with exit code 1. Nothing is saved.
[[noreturn]] void ReportErrorAndExit();
