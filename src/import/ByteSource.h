#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace velmora {

/// A sequence of bytes with random access, safe to read on several threads at once.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// The number of bytes when the source was opened.
    virtual std::uint64_t size() const = 0;

    /// Copies bytes from `offset` into `destination` and returns how many were copied. Copies fewer
    /// than fit if the source ends or cannot be read further.
    virtual std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const = 0;
};

/// Opens a file without loading it. Throws as OpenFile does.
std::unique_ptr<ByteSource> openFile(const std::filesystem::path& path);

/// Opens bytes in memory, which must outlive the source.
std::unique_ptr<ByteSource> openMemory(std::span<const std::byte> bytes);

} // namespace velmora
