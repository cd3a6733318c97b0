#pragma once

#include "sequencer/SequenceHost.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

namespace velmora {

/// The start or the end of a note on the instrument.
struct KeySound {
    bool starts;
    std::uint32_t key;
    float velocity;
    double time; ///< When it is due, in the seconds of `getTime`.
    double step; ///< The position at that time.
};

/// Starts or stops the key now. May be called on any thread.
void sound(SequenceHost& host, const KeySound& keySound);

/// Sounds planned notes on a thread of its own, because the main thread, which plans them, is late
/// whenever it paints.
class AheadPlayer {
public:
    /// The host must outlive it.
    explicit AheadPlayer(SequenceHost& host);

    /// Drops what has not sounded yet.
    ~AheadPlayer();

    AheadPlayer(const AheadPlayer&) = delete;
    AheadPlayer& operator=(const AheadPlayer&) = delete;

    /// Replaces the plan by `sounds`, which are in order of time. `sounds` receives the old plan.
    void plan(std::vector<KeySound>& sounds);

    /// Drops what has not sounded yet. Returns the step of the last sound of the plan, or nothing
    /// if none has sounded.
    std::optional<double> takeBack();

private:
    void run();

    SequenceHost& host_;
    std::mutex mutex_; ///< Guards what follows; held while a key starts or stops.
    std::condition_variable changed_;
    std::vector<KeySound> sounds_;
    std::size_t next_ = 0;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace velmora
