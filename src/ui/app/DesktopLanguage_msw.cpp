#include "ui/app/DesktopLanguage.h"

void UseDesktopLanguage()
{
    // Windows shows its dialogs in its own language.
}
