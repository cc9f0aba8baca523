#pragma once

// What the tests of faults ask of a program by variables of the environment. Files and folders that these
// name are in LOCALAPPDATA.

/// VARLO_KILL_AFTER=N: from now on counts the operations that change the disk, and ends the program, as by a
/// kill, after the N-th.
void CountOperations();

/// Writes the number of counted operations to the file "operations", if they are counted.
void WriteOperationCount();

/// VARLO_EDIT=FOLDER: makes the seven files in this folder the program's tables.
void EditTables();

/// VARLO_WAIT=TEXT: says that the program has loaded its tables by a file "loaded.TEXT", and waits for a file
/// "leave".
void WaitUntilTold();

/// VARLO_HOLD=NAME: on Windows, opens this file of the data folder, which others may only read then; says so
/// by a file "held", waits for a file "release", and returns true.
bool HoldsAFile();
