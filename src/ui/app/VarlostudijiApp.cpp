#include "ui/app/VarlostudijiApp.h"

#include "data/Product.h"
#include "ui/app/ErrorReport.h"
#include "ui/controls/Strings.h"
#include "ui/main/frmMain.h"

bool VarlostudijiApp::OnInit()
{
    SetAppName(ToWx(ProductName));
    SetAppDisplayName(ToWx(ProductName));
    try
    {
        (new frmMain)->Form_Load();
    }
    catch (...)
    {
        ReportErrorAndExit();
    }
    return true;
}

bool VarlostudijiApp::OnExceptionInMainLoop()
{
    ReportErrorAndExit();
}

void VarlostudijiApp::OnUnhandledException()
{
    ReportErrorAndExit();
}
