#pragma once

#include "sequencer/SequenceHost.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

namespace velmora {

/// The beginning or the end of a note on the instrument.
struct KeySound {
    bool starts;
    std::uint32_t key;
    float velocity;
    double time; ///< When it is due, in the seconds of `getTime`.
    double step; ///< Where the position is then.
};

/// Sounds it now. On any thread.
void sound(SequenceHost& host, const KeySound& keySound);

/// Sounds what is planned at its time, on a thread of its own: the main thread, which plans it, is
/// late whenever it paints.
class AheadPlayer {
public:
    /// The host must outlive it.
    explicit AheadPlayer(SequenceHost& host);

    /// What is not sounded yet never is.
    ~AheadPlayer();

    AheadPlayer(const AheadPlayer&) = delete;
    AheadPlayer& operator=(const AheadPlayer&) = delete;

    /// Takes over what is to be sounded, in order of the time, and leaves what was there before.
    void plan(std::vector<KeySound>& sounds);

    /// Gives up what is not sounded yet. The step of the last that was; none where nothing was.
    std::optional<double> takeBack();

private:
    void run();

    SequenceHost& host_;
    std::mutex mutex_; ///< Guards what follows; held while something is sounded.
    std::condition_variable changed_;
    std::vector<KeySound> sounds_;
    std::size_t next_ = 0;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace velmora
