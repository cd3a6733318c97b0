#pragma once

#include "audio/Pcm.h"
#include "base/MemoryGuard.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

namespace velmora {

/// A folder that keeps the samples of compressed sound files, since reading them is much faster
/// than decoding them again. The contents of a file are its key, so that it is found again wherever
/// it lies, and never after it has changed. May be used on several threads and by several programs
/// at once. Nothing is ever thrown because the folder cannot be used.
class DecodedCache {
public:
    /// What else the samples depend on.
    struct Form {
        bool is16Bit = false;
        bool isMono = false;
    };

    /// Uses a folder, which is created when something is stored. `mostBytes` limits its size.
    DecodedCache(std::filesystem::path folder, std::uint64_t mostBytes);

    /// Returns the samples of a sound file, or nothing if they are not stored or damaged. Throws
    /// MemoryShortage.
    std::optional<Pcm> find(std::span<const std::byte> image, Form form, MemoryGuard& memory) const;

    /// Stores the samples of a sound file unless the folder would become too large.
    void store(std::span<const std::byte> image, Form form, const Pcm& pcm);

    /// Removes the files that have not been used for longest until the folder has the right size.
    void trim();

private:
    std::filesystem::path entryOf(std::span<const std::byte> image, Form form) const;

    const std::filesystem::path folder_;
    const std::uint64_t mostBytes_;
    std::atomic<std::uint64_t> stored_{0}; ///< Bytes since the last `trim`.
};

} // namespace velmora
