#pragma once

#include <wx/iconbndl.h>

/// The program's icon in the sizes that the system needs.
wxIconBundle ProgramIcons();
