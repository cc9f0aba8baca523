#include "support/ScreenPicture.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

#ifdef __WXGTK__
#include "ui/controls/NativeFunction_gtk.h"
#endif

namespace
{

#ifdef __WXGTK__

/// Cairo keeps its copy of the screen until the surface is marked as changed.
void DropFormerPicture(const wxScreenDC& screen)
{
    const auto target = NativeFunction<void* (*)(void*)>("cairo_get_target");
    const auto markDirty = NativeFunction<void (*)(void*)>("cairo_surface_mark_dirty");
    markDirty(target(screen.GetImpl()->GetCairoContext()));
}

#else

void DropFormerPicture(const wxScreenDC&) {}

#endif

} // namespace

wxImage ScreenPicture(const wxRect& place)
{
    wxScreenDC screen;
    DropFormerPicture(screen);
    wxBitmap picture(place.GetSize());
    wxMemoryDC(picture).Blit(wxPoint(0, 0), place.GetSize(), &screen, place.GetPosition());
    return picture.ConvertToImage();
}
