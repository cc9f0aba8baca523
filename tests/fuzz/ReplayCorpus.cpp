#include "fuzz/Fuzz.h"
#include "support/TestFolder.h"

// Stands in for the fuzzer where there is none: runs a target with every file of the folders that it is
// given, so that what was once found stays mended.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i)
    {
        for (const std::string& name : EntriesOf(argv[i]))
        {
            std::fprintf(stderr, "%s\n", name.c_str()); // the last one named is the one that failed
            const std::string input = ReadBytes(std::filesystem::path(argv[i]) / name);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
            ++count;
        }
    }
    std::printf("%d inputs passed\n", count);
    return count > 0 ? 0 : 1;
}
