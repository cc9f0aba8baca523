#pragma once

class ListView;

/// Sorts a list by a clicked column. The program remembers one column number and one direction for all lists:
/// a click on the same column number in any list flips the direction, another number sorts ascending.
void SortListViewByColumn(ListView& list, int column);

/// Test hook: forgets the remembered column, as at start-up.
void ForgetSorting();
