#include "import/ByteSource.h"

#include "base/OpenFile.h"

#include <algorithm>
#include <system_error>

namespace velmora {

namespace {

class FileSource : public ByteSource {
public:
    explicit FileSource(const std::filesystem::path& path) : file_(path) {}

    std::uint64_t size() const override { return file_.size(); }

    std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const override
    try {
        return file_.read(offset, destination);
    } catch (const std::system_error&) {
        return 0;
    }

private:
    OpenFile file_;
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
