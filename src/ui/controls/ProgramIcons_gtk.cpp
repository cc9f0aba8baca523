// On GTK the icon is the drawing, built into the program.

#include "ui/controls/ProgramIcons.h"

#include "varlostudiji_svg.h"

#include <wx/bmpbndl.h>

wxIconBundle ProgramIcons()
{
    wxIconBundle icons;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icons.AddIcon(
            wxBitmapBundle::FromSVG(VarlostudijiSvg, wxSize(size, size)).GetIcon(wxSize(size, size)));
    return icons;
}
