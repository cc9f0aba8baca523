#include "ui/app/VarlostudijiApp.h"

wxIMPLEMENT_APP(VarlostudijiApp);
