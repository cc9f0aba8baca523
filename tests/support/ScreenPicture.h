#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

/// A picture of a part of the screen.
wxImage ScreenPicture(const wxRect& place);
