#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <span>

namespace velmora {

/// The bytes of a file and a read position, for libraries that read through callbacks.
class FileImage {
public:
    explicit FileImage(std::span<const std::byte> bytes) : bytes_(bytes) {}

    std::int64_t length() const { return static_cast<std::int64_t>(bytes_.size()); }
    std::int64_t position() const { return position_; }

    /// Copies up to `count` bytes from the position, advances it and returns how many were copied.
    std::int64_t read(void* target, std::int64_t count)
    {
        const std::int64_t copied = std::clamp<std::int64_t>(count, 0, length() - position_);
        if (copied > 0)
            std::memcpy(target, bytes_.data() + position_, static_cast<std::size_t>(copied));
        position_ += copied;
        return copied;
    }

    /// Moves the position as `fseek` does. Returns false, without moving, if the new position is
    /// outside the file.
    bool seek(std::int64_t offset, int whence)
    {
        const std::int64_t from = whence == SEEK_CUR   ? position_
                                  : whence == SEEK_END ? length()
                                                       : 0;
        if (offset < -from || offset > length() - from)
            return false;
        position_ = from + offset;
        return true;
    }

private:
    std::span<const std::byte> bytes_;
    std::int64_t position_ = 0;
};

} // namespace velmora
