#include "ui/controls/ExportCommand.h"

#include "ui/controls/Messages.h"

void WriteAndTell(wxWindow* parent, const std::string& path,
                  const std::function<void(const std::string& path)>& write, std::string_view successText,
                  std::string_view successTitle)
{
    write(path);
    ShowInformation(parent, std::string(successText) + "\r\n" + path, successTitle);
}
