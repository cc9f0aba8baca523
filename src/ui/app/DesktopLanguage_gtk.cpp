#include "ui/app/DesktopLanguage.h"

#include <clocale>

void UseDesktopLanguage()
{
    // If the system does not have the locale, the words stay in English.
    std::setlocale(LC_MESSAGES, "");
    std::setlocale(LC_TIME, ""); // the names of days and months
}
