#include "ui/app/VarlostudijiApp.h"

#include "data/Product.h"
#include "ui/app/DesktopLanguage.h"
#include "ui/app/ErrorReport.h"
#include "ui/app/LeaveSignals.h"
#include "ui/controls/Strings.h"
#include "ui/startup/frmSplash.h"

bool VarlostudijiApp::OnInit()
{
    UseDesktopLanguage();
    SetAppName(ToWx(ProductName));
    SetAppDisplayName(ToWx(ProductName));
    LeaveOnSignals();
    try
    {
        (new frmSplash)->Show();
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
