#pragma once

#include <wx/app.h>
#include <wx/panel.h>
#include <wx/toplevel.h>

#include <cstdlib>
#include <memory>

/// Ends the process, without cleanup, as soon as the window is on the screen, its first child is painted, and
/// the event loop is idle.
inline void ExitAtFirstIdle(wxTopLevelWindow& window)
{
    const auto isPainted = std::make_shared<bool>(false);
    window.GetChildren().front()->Bind(wxEVT_PAINT,
                                       [isPainted](wxPaintEvent& paint)
                                       {
                                           *isPainted = true;
                                           paint.Skip();
                                       });
    window.Bind(wxEVT_IDLE,
                [isPainted](wxIdleEvent& idle)
                {
                    if (*isPainted)
                        std::_Exit(EXIT_SUCCESS);
                    idle.Skip();
                });
}
