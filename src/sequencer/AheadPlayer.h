#pragma once

#include "sequencer/SequenceHost.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

namespace velmora {

/// Starts or stops a key on the instrument at a planned time.
struct KeyAction {
    bool starts;
    std::uint32_t key;
    int channel;
    float velocity;
    double time; ///< When it is due, in the seconds of `getTime`; 0 for at once.
    double step; ///< The position at that time.
};

/// Starts or stops the key for the time of the action. May be called on any thread.
void perform(SequenceHost& host, const KeyAction& action);

/// Plays planned notes on a thread of its own. The main thread plans them, but would play them late
/// whenever it paints.
class AheadPlayer {
public:
    /// The host must outlive it.
    explicit AheadPlayer(SequenceHost& host);

    /// Drops the rest of the plan.
    ~AheadPlayer();

    AheadPlayer(const AheadPlayer&) = delete;
    AheadPlayer& operator=(const AheadPlayer&) = delete;

    /// Replaces the plan with `actions`, which must be in order of time. `actions` receives the old
    /// plan, so that its memory can be reused.
    void plan(std::vector<KeyAction>& actions);

    /// Drops the rest of the plan. Returns the step of the last action that was performed, or
    /// nothing if there was none.
    std::optional<double> cancel();

private:
    void run();

    SequenceHost& host_;
    std::mutex mutex_; ///< Guards the members below; held while a key starts or stops.
    std::condition_variable changed_;
    std::vector<KeyAction> actions_;
    std::size_t next_ = 0;
    bool ends_ = false;
    std::thread thread_;
};

} // namespace velmora
