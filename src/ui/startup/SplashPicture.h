#pragma once

#include <wx/gdicmn.h>

class wxDC;

/// Draws the splash picture in a size in pixels: the program's name on a shelf of catalogue cards. It is
/// drawn, not stored, so that it is sharp at every resolution.
void DrawSplashPicture(wxDC& dc, wxSize size);
