#pragma once

#include "sequencer/Controllers.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/SequenceHost.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

namespace velmora {

/// Starts or stops a key on the instrument, sounds a click, changes a program or moves a
/// controller, at a planned time.
struct KeyAction {
    bool starts = false;
    std::uint32_t key = 0;
    int channel = 0;
    float velocity = 0.0F;
    double time = 0.0;            ///< When it is due, in the seconds of `getTime`; 0 for at once.
    double step = 0.0;            ///< The position at that time.
    std::optional<Click> click{}; ///< In place of the key.
    std::optional<ProgramChange> program{};      ///< In place of the key.
    std::optional<ControllerEvent> controller{}; ///< In place of the key.
};

/// Does what an action says, for its time. May be called on any thread.
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
