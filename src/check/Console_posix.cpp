#include "check/Console.h"

#include <cstdio>

namespace Console
{

std::vector<std::string> Arguments(int count, char* const* values)
{
    return {values + 1, values + count};
}

void Write(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

} // namespace Console
