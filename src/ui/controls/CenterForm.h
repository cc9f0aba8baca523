#pragma once

class wxTopLevelWindow;

/// The position of a centred window's edge in pixels: half of the free space, rounded towards zero.
constexpr int CenteredEdge(int screenExtent, int windowExtent)
{
    return (screenExtent - windowExtent) / 2;
}

/// Centres a window on the screen.
void CenterForm(wxTopLevelWindow& window);
