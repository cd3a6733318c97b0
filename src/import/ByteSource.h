#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace velmora {

/// Bytes that can be read from any place, as often as wanted and by several threads.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// How many bytes there were when it was opened.
    virtual std::uint64_t size() const = 0;

    /// Copies the bytes from `offset` on and returns how many: fewer than `destination` holds where
    /// the source ends before, none beyond its end or where it cannot be read any more.
    virtual std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const = 0;
};

/// A file that is read where it lies, never held whole; one that shrinks meanwhile only gives
/// fewer bytes. Throws std::system_error where it cannot be opened.
std::unique_ptr<ByteSource> openFile(const std::filesystem::path& path);

/// Bytes in memory, which must outlive the source.
std::unique_ptr<ByteSource> openMemory(std::span<const std::byte> bytes);

} // namespace velmora
