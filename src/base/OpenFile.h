#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace velmora {

/// A regular file that is open for reading. May be read on several threads at once.
class OpenFile {
public:
    /// Opens a file without ever waiting for another program. Throws std::system_error with the
    /// system's reason, and FormatError if the name belongs to a pipe, a device or a socket.
    explicit OpenFile(const std::filesystem::path& path);

    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int descriptor() const { return descriptor_; }

    /// The number of bytes when the file was opened.
    std::uint64_t size() const { return size_; }

    /// Copies bytes from `offset` into `destination` and returns how many were copied. Copies fewer
    /// than fit if the file ends. Throws std::system_error.
    std::size_t read(std::uint64_t offset, std::span<std::byte> destination) const;

private:
    int descriptor_;
    std::uint64_t size_ = 0;
};

} // namespace velmora
