#pragma once

#include "base/FormatError.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace velmora {

/// Reads a section of a Standard MIDI File. A read that would exceed the section throws FormatError
/// with the offset where it started.
class MidiFileCursor {
public:
    /// `beyond` is the message of the error for a read past `end`.
    MidiFileCursor(std::span<const std::byte> file, std::size_t begin, std::size_t end,
                   const char* beyond)
        : bytes_(file.first(end)), at_(begin), beyond_(beyond)
    {
    }

    std::size_t offset() const { return at_; }
    std::size_t left() const { return bytes_.size() - at_; }

    std::uint8_t peek()
    {
        require(1);
        return std::to_integer<std::uint8_t>(bytes_[at_]);
    }

    std::uint8_t byte()
    {
        const std::uint8_t value = peek();
        ++at_;
        return value;
    }

    /// Reads a big-endian number of `size` bytes.
    std::uint32_t number(std::size_t size)
    {
        require(size);
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | byte();
        return value;
    }

    /// Reads a variable-length quantity: seven bits a byte, with the top bit set in all but the
    /// last.
    std::uint32_t quantity()
    {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const std::uint8_t next = byte();
            value = value << 7 | (next & 0x7Fu);
            if (next < 0x80)
                return value;
        }
        throw FormatError::atByte(at_ - 4, "a variable-length quantity is longer than four bytes");
    }

    /// Returns the next bytes without reading them; empty if there are fewer than `size`.
    std::string_view text(std::size_t size) const
    {
        return size > left()
                   ? std::string_view{}
                   : std::string_view(reinterpret_cast<const char*>(bytes_.data()) + at_, size);
    }

    void skip(std::size_t size)
    {
        require(size);
        at_ += size;
    }

    /// Skips `size` bytes and returns a cursor for them.
    MidiFileCursor part(std::size_t size, const char* beyond)
    {
        require(size);
        at_ += size;
        return {bytes_, at_ - size, at_, beyond};
    }

private:
    void require(std::size_t size) const
    {
        if (size > left())
            throw FormatError::atByte(at_, beyond_);
    }

    std::span<const std::byte> bytes_; ///< The file up to the end of the section.
    std::size_t at_;
    const char* beyond_;
};

} // namespace velmora
