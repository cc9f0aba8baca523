#pragma once

#include <string>

/// How a run of the scripted program ended.
struct Outcome
{
    long ExitCode;
    std::string Output; ///< The message boxes, a line each: title, severity, text.
};

/// Runs the scripted program to its end. Environment variables control it.
Outcome RunScriptedProgram();
