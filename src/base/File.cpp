#include "base/File.h"

#include "base/FormatError.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace velmora {

namespace {

FormatError systemError(int code)
{
    return FormatError("cannot be read (" + std::generic_category().message(code) + ")");
}

template <class Bytes> Bytes readBytes(const std::filesystem::path& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        throw systemError(EISDIR);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file)
        throw systemError(errno);

    // The size is only a hint, since pipes have none. So the file is read in blocks until its end.
    Bytes bytes;
    constexpr std::size_t kBlock = 1 << 16;
    if (const std::uintmax_t size = std::filesystem::file_size(path, error); !error)
        bytes.reserve(size + 2 * kBlock);
    std::size_t length = 0;
    do {
        bytes.resize(bytes.size() + kBlock);
        length = std::fread(bytes.data() + bytes.size() - kBlock, 1, kBlock, file.get());
        bytes.resize(bytes.size() - kBlock + length);
    } while (length == kBlock);
    if (std::ferror(file.get()) != 0)
        throw systemError(errno);
    return bytes;
}

} // namespace

std::vector<std::byte> readFile(const std::filesystem::path& path)
{
    return readBytes<std::vector<std::byte>>(path);
}

std::string readTextFile(const std::filesystem::path& path)
{
    return readBytes<std::string>(path);
}

} // namespace velmora
