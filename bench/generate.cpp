#include "Generator.h"

#include "data/Errors.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

/// generate_catalogue SIZE FOLDER [SEED]: writes a generated catalogue into a folder, which is made if
/// missing.
int main(int count, char** arguments)
{
    const std::string_view wanted = count > 1 ? arguments[1] : "";
    const auto size = std::ranges::find(CatalogueSizes, wanted, &CatalogueSize::Name);
    if (count < 3 || size == CatalogueSizes.end())
    {
        std::cerr << "generate_catalogue faculty|university|country FOLDER [SEED]\n";
        return 2;
    }
    try
    {
        std::filesystem::create_directories(arguments[2]);
        GenerateCatalogue(*size, count > 3 ? std::strtoull(arguments[3], nullptr, 10) : UsualSeed,
                          arguments[2]);
    }
    catch (const RuntimeError& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
