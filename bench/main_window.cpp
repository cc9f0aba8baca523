// The program's start without the splash: the main window with the catalogue in LOCALAPPDATA.

#include "FirstIdle.h"

#include "data/Product.h"
#include "ui/app/VarlostudijiApp.h"
#include "ui/controls/Strings.h"
#include "ui/main/frmMain.h"

namespace
{

class MainWindowApp : public VarlostudijiApp
{
public:
    bool OnInit() override
    {
        SetAppName(ToWx(ProductName));
        SetAppDisplayName(ToWx(ProductName));
        auto* window = new frmMain;
        window->Form_Load();
        ExitAtFirstIdle(*window);
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP(MainWindowApp);
