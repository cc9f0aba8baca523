#include "support/ScriptedProgram.h"

#include <wx/arrstr.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

Outcome RunScriptedProgram()
{
    wxFileName program(wxStandardPaths::Get().GetExecutablePath());
    program.SetName("scripted_program");
    wxArrayString output;
    wxArrayString errors;
    const long exitCode = wxExecute("\"" + program.GetFullPath() + "\"", output, errors, wxEXEC_SYNC);
    return {exitCode, wxJoin(output, '\n', '\0').utf8_string()};
}
