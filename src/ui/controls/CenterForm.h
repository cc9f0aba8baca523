#pragma once

class wxTopLevelWindow;

/// Where a window's edge lies when it is centred: half of what the screen leaves, the remainder dropped.
/// Pixels.
constexpr int CenteredEdge(int screenExtent, int windowExtent)
{
    return (screenExtent - windowExtent) / 2;
}

/// Places a window in the middle of the screen.
void CenterForm(wxTopLevelWindow& window);
