#include "audio/DecodedCache.h"

#include "base/OpenFile.h"

#include <fcntl.h>
#include <spdlog/fmt/fmt.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>
#include <vector>

namespace velmora {

namespace {

/// The start of a file in the cache. Only this machine reads it, so numbers have its byte order.
struct Header {
    std::array<char, 8> magic{'v', 'e', 'l', 'p', 'c', 'm', '1', '\n'};
    double rate = 0.0;
    std::uint64_t samples = 0;
    std::uint64_t checksum = 0;
    std::uint32_t channels = 0;
    std::uint32_t areFloats = 0;
};

std::uint64_t hashOf(std::span<const std::byte> bytes)
{
    return std::hash<std::string_view>{}(
        {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::span<const std::byte> bytesOf(const Pcm& pcm)
{
    return pcm.floats.empty() ? std::as_bytes(std::span(pcm.samples))
                              : std::as_bytes(std::span(pcm.floats));
}

/// Samples are read and checked in blocks that stay in the processor's cache.
constexpr std::size_t kBlock = std::size_t{1} << 17U;

/// Returns the checksum of a header, and of so much of the samples behind it as is added.
std::uint64_t checksumOf(Header header)
{
    header.checksum = 0;
    return hashOf(std::as_bytes(std::span(&header, 1)));
}

std::uint64_t added(std::uint64_t checksum, std::span<const std::byte> block)
{
    return checksum * 31 + hashOf(block);
}

/// Fills a vector from behind the header. Returns false unless it is what was written.
template <class Sample> bool readSamples(const OpenFile& file, const Header& header,
                                         std::vector<Sample>& samples, MemoryGuard& memory)
{
    if (header.samples != (file.size() - sizeof(Header)) / sizeof(Sample))
        return false;
    memory.require(header.samples * sizeof(Sample));
    samples.reserve(header.samples);
    std::vector<Sample> block(kBlock / sizeof(Sample));
    std::uint64_t checksum = checksumOf(header);
    std::uint64_t at = sizeof(Header);
    while (samples.size() < header.samples) {
        const std::span part(block.data(),
                             std::min<std::size_t>(block.size(), header.samples - samples.size()));
        if (file.read(at, std::as_writable_bytes(part)) < part.size_bytes())
            return false;
        checksum = added(checksum, std::as_bytes(part));
        samples.insert(samples.end(), part.begin(), part.end());
        at += part.size_bytes();
    }
    return checksum == header.checksum;
}

bool writeAll(int descriptor, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), bytes.size());
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

DecodedCache::DecodedCache(std::filesystem::path folder, std::uint64_t mostBytes)
    : folder_(std::move(folder)), mostBytes_(mostBytes)
{
}

std::filesystem::path DecodedCache::entryOf(std::span<const std::byte> image, Form form) const
{
    // The bytes of different compressed files differ everywhere, so a part of them is enough.
    constexpr std::size_t kStep = std::size_t{1} << 16U, kPart = std::size_t{1} << 12U;
    std::uint64_t hash = 0;
    for (std::size_t at = 0; at < image.size(); at += kStep)
        hash = added(hash, image.subspan(at, std::min(kPart, image.size() - at)));
    return folder_ / fmt::format("{:016x}-{}{}{}.pcm", hash, image.size(),
                                 form.is16Bit ? "-16" : "", form.isMono ? "-mono" : "");
}

std::optional<Pcm> DecodedCache::find(std::span<const std::byte> image, Form form,
                                      MemoryGuard& memory) const
{
    const auto entry = entryOf(image, form);
    std::error_code missing;
    if (!std::filesystem::exists(entry, missing))
        return std::nullopt;
    try {
        const OpenFile file(entry);
        Header header;
        const auto magic = header.magic;
        if (file.read(0, std::as_writable_bytes(std::span(&header, 1))) < sizeof(Header) ||
            header.magic != magic)
            return std::nullopt;
        Pcm pcm{{}, static_cast<int>(header.channels), header.rate};
        if (!(header.areFloats != 0 ? readSamples(file, header, pcm.floats, memory)
                                    : readSamples(file, header, pcm.samples, memory)))
            return std::nullopt;
        std::filesystem::last_write_time(entry, std::filesystem::file_time_type::clock::now(),
                                         missing);
        return pcm;
    } catch (const std::runtime_error&) {
        return std::nullopt; // removed in the meantime, or unreadable
    }
}

void DecodedCache::store(std::span<const std::byte> image, Form form, const Pcm& pcm)
{
    const auto bytes = bytesOf(pcm);
    const std::uint64_t size = sizeof(Header) + bytes.size();
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    // A quarter of the disk's free space is as much as a cache may take of it.
    const std::uint64_t most =
        std::min<std::uint64_t>(mostBytes_, std::filesystem::space(folder_, error).available / 4);
    if (error || stored_.fetch_add(size) + size > most)
        return;

    const auto entry = entryOf(image, form);
    std::string unfinished = entry.string() + ".XXXXXX";
    const int descriptor = mkostemp(unfinished.data(), O_CLOEXEC);
    if (descriptor < 0)
        return;
    Header header;
    header.rate = pcm.rate;
    header.samples = pcm.size();
    header.channels = static_cast<std::uint32_t>(pcm.channels);
    header.areFloats = pcm.floats.empty() ? 0 : 1;
    header.checksum = checksumOf(header);
    for (std::size_t at = 0; at < bytes.size(); at += kBlock)
        header.checksum =
            added(header.checksum, bytes.subspan(at, std::min(kBlock, bytes.size() - at)));
    const bool isWhole =
        writeAll(descriptor, std::as_bytes(std::span(&header, 1))) && writeAll(descriptor, bytes);
    close(descriptor);
    if (isWhole)
        std::filesystem::rename(unfinished, entry, error);
    if (!isWhole || error)
        std::filesystem::remove(unfinished, error);
}

void DecodedCache::trim()
{
    if (stored_.exchange(0) == 0)
        return;
    struct Entry {
        std::filesystem::file_time_type used;
        std::uint64_t size;
        std::filesystem::path path;
    };
    std::vector<Entry> entries;
    std::uint64_t total = 0;
    std::error_code error;
    for (std::filesystem::directory_iterator file(folder_, error), end; !error && file != end;
         file.increment(error)) {
        std::error_code gone;
        const Entry entry{file->last_write_time(gone), file->file_size(gone), file->path()};
        if (gone)
            continue;
        total += entry.size;
        entries.push_back(entry);
    }
    std::ranges::sort(entries, {}, &Entry::used);
    for (const Entry& entry : entries) {
        if (total <= mostBytes_)
            return;
        std::filesystem::remove(entry.path, error);
        total -= entry.size;
    }
}

} // namespace velmora
