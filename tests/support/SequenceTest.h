#pragma once

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceDocument.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

using Calls = std::vector<std::string>;

/// A document with a clock that only `tick` moves, on a host that records its calls. In its
/// plain reading a second is 15 steps: see docs/decisions.md, 83.
class SequenceTest : public testing::Test, public SequenceHost {
protected:
    void play(int key, float velocity, int /*channel*/, double time) override
    {
        playTime_ = time;
        playKey_ = key;
        called(fmt::format("play {} {:.2f}", key, velocity));
        if (onPlay_)
            onPlay_();
    }
    void stop(int key, int /*channel*/, double /*time*/) override
    {
        called(fmt::format("stop {}", key));
    }
    LiveKeys& liveKeys() override { return liveKeys_; }

    /// Adds a committed note and measures the extent.
    void add(unsigned key, double start, double length)
    {
        document_.edit()->addNote({.start = start,
                                   .length = length,
                                   .oldLength = length,
                                   .velocity = 1.0F,
                                   .key = key,
                                   .oldStart = start,
                                   .oldKey = key});
        document_.updateExtent();
    }

    void press(unsigned key) { liveKeys_.press(key, 0.5F, now_); }
    void release(unsigned key) { liveKeys_.release(key, now_); }

    /// Moves the clock by a number of steps and ticks once.
    void tick(double steps)
    {
        now_ += steps / 15.0;
        transport_.tick();
    }

    void called(std::string call)
    {
        const std::lock_guard lock(lock_);
        calls_.push_back(std::move(call));
    }

    static constexpr auto kStopped = Transport::Mode::Stopped;

    Calls calls_;
    std::function<void()> onPlay_;
    double playTime_ = 0.0; ///< For when the last note was meant.
    int playKey_ = 0;       ///< The key of the last note.
    std::mutex lock_;       ///< Guards `calls_`, which two threads write.
    LiveKeys liveKeys_;
    double now_ = 1000.0;
    SequenceDocument document_{*this, Reading::Plain, [this] { return now_; }};
    Transport& transport_ = document_.transport();
    Recorder& recorder_ = document_.recorder();
    Practice& practice_ = document_.practice();
};

} // namespace velmora
