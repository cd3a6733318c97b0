#pragma once

#include "audio/DecodingOptions.h"
#include "audio/Pcm.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace velmora {

/// Decodes sound files on several threads and hands them out in order. At most a few megabytes are
/// decoded ahead, or a single file if that is larger.
class SoundLoader {
public:
    /// Starts decoding. Uses at least one thread.
    SoundLoader(std::vector<std::filesystem::path> files, const DecodingOptions& options,
                unsigned threads = std::thread::hardware_concurrency());

    /// Waits for the files that are being decoded and skips the rest.
    ~SoundLoader();

    /// Waits for the next file and returns its sound. Throws FormatError if the file cannot be
    /// decoded, and std::bad_alloc. Must not be called more often than there are files.
    Pcm next();

private:
    /// The state of one file.
    struct Slot {
        bool done = false;
        std::optional<Pcm> pcm;
        std::exception_ptr error; ///< Why decoding failed.
        std::uintmax_t bytes = 0; ///< This file's share of `ahead_`.
    };

    void work(const std::stop_token& stop);
    Slot decode(const std::filesystem::path& file) const;

    const std::vector<std::filesystem::path> files_;
    const DecodingOptions options_;
    const std::size_t window_; ///< The most files that may be started and not yet taken.

    std::mutex mutex_; ///< Guards the members below.
    std::condition_variable_any changed_;
    std::vector<Slot> slots_;
    std::size_t started_ = 0;  ///< Number of files that a thread has started on.
    std::size_t taken_ = 0;    ///< Number of files handed out.
    std::uintmax_t ahead_ = 0; ///< Bytes started and not yet taken; an estimate until decoded.

    std::vector<std::jthread> threads_; ///< Last, so that the threads end first.
};

} // namespace velmora
