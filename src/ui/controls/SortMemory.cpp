#include "ui/controls/SortMemory.h"

#include "ui/controls/ListView.h"

#include <optional>

namespace
{

std::optional<ListOrder> Remembered;

} // namespace

void SortListViewByColumn(ListView& list, int column)
{
    const auto clicked = static_cast<std::size_t>(column);
    const bool again = Remembered && Remembered->Column == clicked;
    Remembered = ListOrder{clicked, again && !Remembered->Descending};
    list.SortBy(*Remembered);
}

void ForgetSorting()
{
    Remembered.reset();
}
