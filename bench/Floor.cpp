#include "Floor.h"

#include "data/Windows1250.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace
{

void Require(bool success)
{
    if (!success)
        throw std::system_error(errno, std::generic_category());
}

std::string ReadWhole(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    Require(file >= 0);
    struct stat status = {};
    Require(::fstat(file, &status) == 0);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    Require(::read(file, bytes.data(), bytes.size()) == status.st_size);
    ::close(file);
    return bytes;
}

/// The UTF-8 text of each byte.
const std::array<std::string, 256>& TextsOfBytes()
{
    static const std::array<std::string, 256> texts = []
    {
        std::array<std::string, 256> made;
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = FromWindows1250(std::string(1, static_cast<char>(i)));
        return made;
    }();
    return texts;
}

std::string Decoded(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes)
    {
        if (const auto byte = static_cast<unsigned char>(c); byte < 0x80)
            text += c;
        else
            text += TextsOfBytes()[byte];
    }
    return text;
}

} // namespace

std::size_t ReadAndDecode(const std::vector<std::string>& paths)
{
    std::size_t length = 0;
    for (const std::string& path : paths)
        length += Decoded(ReadWhole(path)).size();
    return length;
}

void WriteFlushed(const std::string& path, std::string_view bytes)
{
    const std::string temporary = path + ".new";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    Require(file >= 0);
    Require(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    Require(::fsync(file) == 0);
    Require(::close(file) == 0);
    Require(::rename(temporary.c_str(), path.c_str()) == 0);

    const int folder = ::open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Require(folder >= 0);
    Require(::fsync(folder) == 0);
    ::close(folder);
}
