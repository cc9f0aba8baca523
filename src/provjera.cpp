#include "check/Provjera.h"
#include "check/Console.h"

int main(int count, char** values)
{
    return Check::Provjera(Console::Arguments(count, values), {Console::Write, Console::ReadLine});
}
