#pragma once

#include "audio/Pcm.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace velmora {

/// Decodes sound files on several threads ahead of the one that takes them, in their order. No more
/// is decoded ahead than a few megabytes, or one file where that is larger.
class SoundLoader {
public:
    /// Begins with the first files. At least one thread.
    explicit SoundLoader(std::vector<std::filesystem::path> files,
                         unsigned threads = std::thread::hardware_concurrency());

    /// Decodes no further file; waits for those that are being decoded.
    ~SoundLoader();

    /// The sound of the next file; waits for it. Throws FormatError where it cannot be decoded,
    /// std::bad_alloc where there is no memory for it. Called no more often than there are files.
    Pcm next();

private:
    /// What has become of a file.
    struct Slot {
        bool done = false;
        std::optional<Pcm> pcm;
        std::optional<std::string> reason; ///< of failure; neither where memory ran out
        std::uintmax_t bytes = 0;          ///< counted in `ahead_`
    };

    void work(const std::stop_token& stop);
    static Slot decode(const std::filesystem::path& file);

    const std::vector<std::filesystem::path> files_;
    const std::size_t window_; ///< files that may be begun and not handed out

    std::mutex mutex_; ///< guards what follows
    std::condition_variable_any changed_;
    std::vector<Slot> slots_;
    std::size_t begun_ = 0;    ///< files that a thread has taken upon itself
    std::size_t taken_ = 0;    ///< files handed out
    std::uintmax_t ahead_ = 0; ///< bytes of files begun and not handed out, by guess until decoded

    std::vector<std::jthread> threads_; ///< last, and so ended first
};

} // namespace velmora
