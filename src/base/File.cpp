#include "base/File.h"

#include "base/FormatError.h"
#include "base/MemoryGuard.h"
#include "base/OpenFile.h"

#include <system_error>

namespace velmora {

namespace {

template <class Bytes> Bytes readBytes(const std::filesystem::path& path)
try {
    const OpenFile file(path);
    MemoryGuard::machine().require(file.size());

    // The size is only a hint: the system's own files have none, and others may still grow.
    Bytes bytes;
    constexpr std::size_t kBlock = 1 << 16;
    bytes.reserve(file.size() + 2 * kBlock);
    std::size_t length = 0;
    do {
        const std::size_t end = bytes.size();
        bytes.resize(end + kBlock);
        length = file.read(end, std::as_writable_bytes(std::span(bytes).subspan(end)));
        bytes.resize(end + length);
    } while (length == kBlock);
    return bytes;
} catch (const std::system_error& error) {
    throw FormatError("cannot be read (" + error.code().message() + ")");
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
