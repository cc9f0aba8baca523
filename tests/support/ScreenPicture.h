#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

/// A part of the screen as it is now.
wxImage ScreenPicture(const wxRect& place);
