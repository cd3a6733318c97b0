#include "import/ByteSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace velmora {

namespace {

class FileSource : public ByteSource {
public:
    explicit FileSource(const std::filesystem::path& path)
        : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC))
    {
        struct stat status = {};
        if (descriptor_ < 0 || fstat(descriptor_, &status) != 0)
            fail(errno);
        if (S_ISDIR(status.st_mode))
            fail(EISDIR);
        size_ = static_cast<std::uint64_t>(status.st_size);
    }

    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;
    ~FileSource() override { close(descriptor_); }

    std::uint64_t size() const override { return size_; }

    std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const override
    {
        std::size_t done = 0;
        while (done < destination.size()) {
            const ssize_t count =
                pread(descriptor_, destination.data() + done, destination.size() - done,
                      static_cast<off_t>(offset + done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                break;
            done += static_cast<std::size_t>(count);
        }
        return done;
    }

private:
    [[noreturn]] void fail(int code) const
    {
        if (descriptor_ >= 0)
            close(descriptor_);
        throw std::system_error(code, std::generic_category());
    }

    int descriptor_;
    std::uint64_t size_ = 0;
};

class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::span<const std::byte> bytes) : bytes_(bytes) {}

    std::uint64_t size() const override { return bytes_.size(); }

    std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const override
    {
        if (offset >= bytes_.size())
            return 0;
        const auto rest = bytes_.subspan(static_cast<std::size_t>(offset));
        const std::size_t count = std::min(rest.size(), destination.size());
        std::copy_n(rest.begin(), count, destination.begin());
        return count;
    }

private:
    std::span<const std::byte> bytes_;
};

} // namespace

std::unique_ptr<ByteSource> openFile(const std::filesystem::path& path)
{
    return std::make_unique<FileSource>(path);
}

std::unique_ptr<ByteSource> openMemory(std::span<const std::byte> bytes)
{
    return std::make_unique<MemorySource>(bytes);
}

} // namespace velmora
