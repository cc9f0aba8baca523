#pragma once

class ListView;

/// Sorts a list by a clicked column. The program remembers one column and one direction for all its lists:
/// the same column number again flips the direction, wherever it was clicked before; another one sorts
/// ascending.
void SortListViewByColumn(ListView& list, int column);

/// Forgets the remembered column, as at start-up.
void ForgetSorting();
