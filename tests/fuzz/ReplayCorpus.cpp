#include "fuzz/Fuzz.h"
#include "support/TestFolder.h"

// Replaces the fuzzer if there is none: runs a target with every file of the given folders, so that old finds
// stay fixed.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i)
    {
        for (const std::string& name : EntriesOf(argv[i]))
        {
            std::fprintf(stderr, "%s\n", name.c_str()); // the last name printed is the one that failed
            const std::string input = ReadBytes(std::filesystem::path(argv[i]) / name);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
            ++count;
        }
    }
    std::printf("%d inputs passed\n", count);
    return count > 0 ? 0 : 1;
}
