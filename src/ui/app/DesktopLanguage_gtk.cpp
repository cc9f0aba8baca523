#include "ui/app/DesktopLanguage.h"

#include <clocale>

void UseDesktopLanguage()
{
    // A locale that the system does not have leaves the words in English.
    std::setlocale(LC_MESSAGES, "");
    std::setlocale(LC_TIME, ""); // the names of days and months
}
