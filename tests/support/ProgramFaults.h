#pragma once

// Faults that tests ask for by environment variables. Files and folders that these name are in LOCALAPPDATA.

/// VARLO_KILL_AFTER=N: counts the operations that change the disk from now on, and kills the program after
/// the N-th.
void CountOperations();

/// Writes the number of counted operations to the file "operations", if they are counted.
void WriteOperationCount();

/// VARLO_EDIT=FOLDER: makes the seven files in this folder the program's tables.
void EditTables();

/// VARLO_WAIT=TEXT: writes a file "loaded.TEXT" after the program has loaded its tables, then waits for a
/// file "leave".
void WaitForLeaveFile();

/// VARLO_HOLD=NAME: on Windows, opens this file of the data folder so that others can only read it, writes a
/// file "held", waits for a file "release", and returns true.
bool HoldsAFile();
