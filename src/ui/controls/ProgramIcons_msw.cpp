// On Windows the icon is a resource of the program.

#include "ui/controls/ProgramIcons.h"

wxIconBundle ProgramIcons()
{
    return wxIconBundle("varlostudiji", nullptr);
}
