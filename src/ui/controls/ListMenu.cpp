#include "ui/controls/ListMenu.h"

#include "text/TabSeparated.h"
#include "ui/controls/Strings.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/menu.h>
#include <wx/textbuf.h>
#include <wx/utils.h>

#include <memory>
#include <string>

namespace
{

/// Copies the captions and `count` rows from `first` to the clipboard. Beeps if another program keeps the
/// clipboard open.
void CopyRows(const ListView& list, int first, int count)
{
    std::vector<std::vector<std::string>> rows(static_cast<std::size_t>(count) + 1);
    for (int column = 0; column < list.ColumnCount(); ++column)
    {
        rows.front().push_back(ToUtf8(list.ColumnCaption(column)));
        for (int row = 0; row < count; ++row)
            rows[static_cast<std::size_t>(row) + 1].push_back(list.Text(first + row, column));
    }
    const std::string text = TabSeparated(rows, ToUtf8(wxTextBuffer::GetEOL()));
    const wxClipboardLocker clipboard;
    if (!clipboard || !wxTheClipboard->SetData(new wxTextDataObject(ToWx(text))))
        wxBell();
    else
        wxTheClipboard->Flush(); // the text stays after the program has ended
}

} // namespace

void ShowListMenu(ListView& list, const wxPoint& place, const std::vector<ListCommand>& commands)
{
    const int selected = list.SelectedRow();
    std::vector<ListCommand> all = commands;
    all.push_back({"Kopiraj &redak", true, [&list, selected] { CopyRows(list, selected, 1); }});
    all.push_back({"Kopiraj &sve", false, [&list] { CopyRows(list, 0, list.RowCount()); }});

    wxMenu menu;
    std::vector<int> ids;
    for (const ListCommand& command : all)
    {
        if (!ids.empty() && ids.size() == commands.size())
            menu.AppendSeparator();
        wxMenuItem* item = menu.Append(wxID_ANY, ToWx(command.Caption));
        item->Enable(selected >= 0 || !command.NeedsRow);
        ids.push_back(item->GetId());
    }
    const int chosen = list.GetPopupMenuSelectionFromUser(menu, list.ScreenToClient(place));
    for (std::size_t i = 0; i < ids.size(); ++i)
        if (ids[i] == chosen)
            list.CallAfter(all[i].Run);
}
