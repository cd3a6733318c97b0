#include "base/OpenFile.h"

#include "base/FormatError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace velmora {

OpenFile::OpenFile(const std::filesystem::path& path)
    // Opening a pipe that nobody writes to would wait for ever without O_NONBLOCK.
    : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
{
    struct stat status = {};
    const bool isOpen = descriptor_ >= 0 && fstat(descriptor_, &status) == 0;
    if (isOpen && S_ISREG(status.st_mode)) {
        size_ = static_cast<std::uint64_t>(status.st_size);
        return;
    }
    // A socket cannot be opened at all: ENXIO.
    const int code = isOpen && S_ISDIR(status.st_mode) ? EISDIR : errno;
    if (descriptor_ >= 0)
        close(descriptor_);
    if ((isOpen && code != EISDIR) || code == ENXIO)
        throw FormatError("is a pipe or a device, not a file");
    throw std::system_error(code, std::generic_category());
}

OpenFile::~OpenFile()
{
    close(descriptor_);
}

std::size_t OpenFile::read(std::uint64_t offset, std::span<std::byte> destination) const
{
    std::size_t done = 0;
    while (done < destination.size()) {
        const ssize_t count = pread(descriptor_, destination.data() + done,
                                    destination.size() - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw std::system_error(errno, std::generic_category());
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

} // namespace velmora
