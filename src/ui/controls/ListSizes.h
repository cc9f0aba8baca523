#pragma once

class ListView;

// The room that a list needs on the screen, in pixels, with its border and scroll bar.

/// The width in which all columns are seen.
int WidthForColumns(const ListView& list);

/// The height in which the header and so many rows are seen.
int HeightForRows(const ListView& list, int rows);
