#pragma once

#include <wx/colour.h>
#include <wx/settings.h>

/// A colour for text on one of the system's backgrounds: a lighter shade if the background is dark.
wxColour ReadableColour(const wxColour& colour, wxSystemColour background);
