#include "check/Console.h"

#include <cstdio>

namespace Console
{

std::string ReadLine()
{
    std::string line;
    for (int character = std::getchar(); character != '\n' && character != EOF; character = std::getchar())
        if (character != '\r')
            line += static_cast<char>(character);
    return line;
}

} // namespace Console
