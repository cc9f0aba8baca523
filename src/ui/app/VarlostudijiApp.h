#pragma once

#include <wx/app.h>

/// The program: opens its first window, and reports an error that nothing has caught.
class VarlostudijiApp : public wxApp
{
public:
    bool OnInit() override;
    bool OnExceptionInMainLoop() override;
    void OnUnhandledException() override;
};
