// Loads the catalogue and saves it at exit, twice, as the program does, but without a window: for tests that
// do so thousands of times. The variables are in support/ProgramFaults.h.

#include "data/Errors.h"
#include "data/modData.h"
#include "support/ProgramFaults.h"
#include "validation/modCSVValidator.h"

#include <cstdio>
#include <cstdlib>

int main()
{
    if (HoldsAFile())
        return EXIT_SUCCESS;
    CountOperations();
    try
    {
        modData::LoadAllTables();
        EditTables();
        WaitForLeaveFile();
        if (!modCSVValidator::ValidateAll())
        {
            std::puts("invalid data");
            return EXIT_FAILURE;
        }
        modData::SaveAllTables();
        modData::SaveAllTables();
    }
    catch (const RuntimeError& error)
    {
        std::puts(error.what());
        return EXIT_FAILURE;
    }
    WriteOperationCount();
    return EXIT_SUCCESS;
}
