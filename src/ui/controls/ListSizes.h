#pragma once

class ListView;

// The size that a list needs on the screen, in pixels, with its border and scroll bar.

/// The width for all columns.
int WidthForColumns(const ListView& list);

/// The height for the header and so many rows.
int HeightForRows(const ListView& list, int rows);
