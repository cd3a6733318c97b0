#pragma once

#include "audio/AudioOutput.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace velmora {

/// What plays, and what is missing.
struct OutputStatus {
    std::string driver;     ///< Empty before the first output.
    std::string device;     ///< Empty for the driver's usual one.
    double rate = 0.0;      ///< In hertz.
    std::size_t period = 0; ///< In frames.
    double latency = 0.0;   ///< As of `AudioOutput`, in seconds.
    std::uint64_t lostPeriods = 0;
    double lastLoss = 0.0; ///< The time of the last lost period, as of `getTime`; 0 without one.
    std::string missing;   ///< A sentence about the wanted output; empty while it plays.
};

/// Keeps sound playing. While the wanted output is missing, the next best one plays, and the keeper
/// goes on looking for what is wanted. If the user leaves the choice to the program, the first
/// output that is found is the wanted one. See docs/decisions.md, 140.
class OutputKeeper {
public:
    struct Callbacks {
        /// An output of that sample rate is about to play; the source is not being rendered.
        std::function<void(double rate)> starting;
        /// Something else plays, or something else is missing.
        std::function<void()> changed;
    };

    /// Plays `source` from now on. Callbacks come on a thread of the keeper. Call
    /// `quietSoundLibraries` before.
    OutputKeeper(AudioSource& source, OutputSettings wanted, Callbacks callbacks);

    /// Ends playing. Returns within a few seconds, even if a sound server hangs.
    ~OutputKeeper();

    OutputKeeper(const OutputKeeper&) = delete;
    OutputKeeper& operator=(const OutputKeeper&) = delete;

    // The functions below may be called on any thread.

    /// Plays through another output. Does nothing if that one is wanted already.
    void want(const OutputSettings& settings);

    OutputStatus status() const;

    /// Waits until an output plays, and returns the status.
    OutputStatus waitForOutput() const;

private:
    using Clock = std::chrono::steady_clock;

    void run();
    bool isGone();
    void openBest();
    void findBetter();
    bool mayBlock(const OutputSettings& candidate);
    void play(std::unique_ptr<AudioOutput> output, std::size_t candidate);
    void close();
    std::vector<OutputSettings> candidates() const;
    std::string describeMissing(const std::string& driver) const;

    AudioSource& source_;
    Callbacks callbacks_;

    // Used on the keeper's thread only.
    OutputSettings home_;    ///< What is wanted; the output that was found first if that is open.
    bool hasPlayed_ = false; ///< True if `home_` has played.
    std::vector<OutputSettings> candidates_; ///< In the order of preference.
    std::size_t playing_ = 0;                ///< The index of the candidate that plays.
    std::uint64_t periods_ = 0;              ///< Of the output, when it was last seen to advance,
    Clock::time_point advanced_;             ///< which was then.
    Clock::time_point unblocked_;            ///< When an output was last closed for a busy device.

    mutable std::mutex mutex_;
    std::condition_variable wakeUp_;
    mutable std::condition_variable opened_;
    std::unique_ptr<AudioOutput> output_; ///< Exchanged under the lock.
    std::string missing_;
    OutputSettings wanted_;
    bool isNew_ = true; ///< True if `wanted_` has not been looked at.
    bool isEnding_ = false;
    std::thread thread_;
};

} // namespace velmora
