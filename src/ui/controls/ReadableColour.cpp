#include "ui/controls/ReadableColour.h"

wxColour ReadableColour(const wxColour& colour, wxSystemColour background)
{
    constexpr double dark = 0.5; // of the luminance from black to white
    constexpr int lighter = 160; // per cent: 100 changes nothing, 200 is white
    return wxSystemSettings::GetColour(background).GetLuminance() < dark ? colour.ChangeLightness(lighter)
                                                                         : colour;
}
