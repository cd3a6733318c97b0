#pragma once

#include "app/AppDelegate.h"
#include "audio/Synthesizer.h"
#include "audio/silence.h"
#include "base/Clock.h"
#include "midi/messages.h"
#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "support/Stereo.h"

#include <chrono>
#include <mutex>
#include <random>
#include <set>
#include <thread>

namespace velmora {

constexpr double kRate = 48000.0;
constexpr std::size_t kTenthOfASecond = 4800; ///< In frames.

/// Renders a source of sound in real time, in blocks of 128 frames, as an audio driver does. The
/// source must outlive it.
class AudioThread {
public:
    explicit AudioThread(AudioSource& source) : source_(source) {}

    /// Returns whether the source falls silent within forty seconds of sound, rendered at
    /// once. Some programs decay slowly.
    bool fallsSilent()
    {
        const std::lock_guard lock(mutex_);
        for (int i = 0; i < 400; ++i)
            if (!isAudible(peak(rendered(source_, kTenthOfASecond).left)))
                return true;
        return false;
    }

private:
    AudioSource& source_;
    std::mutex mutex_;
    std::jthread thread_{[this](const std::stop_token& stop) {
        constexpr std::chrono::nanoseconds kBlock{2'666'667};
        for (auto next = std::chrono::steady_clock::now(); !stop.stop_requested();) {
            {
                const std::lock_guard lock(mutex_);
                rendered(source_, 128);
            }
            next = std::max(next + kBlock, std::chrono::steady_clock::now());
            std::this_thread::sleep_until(next);
        }
    }};
};

/// A MIDI device that sends random keys and controllers on its own thread.
class DeviceThread {
public:
    /// Creates a device that does not play yet.
    DeviceThread(LiveInput& input, unsigned seed) : input_(input), random_(seed) {}

    /// Starts or stops playing, and releases every key.
    void setPlaying(bool plays)
    {
        const std::lock_guard lock(mutex_);
        plays_ = plays;
        while (!held_.empty())
            send({midi::kNoteOff, *held_.begin(), 0});
    }

private:
    void send(std::vector<std::uint8_t> message)
    {
        if ((message[0] & midi::kKindMask) == midi::kNoteOn)
            held_.insert(message[1]);
        else if ((message[0] & midi::kKindMask) == midi::kNoteOff)
            held_.erase(message[1]);
        const MidiPacket packet = message;
        midiRead({&packet, 1}, input_);
    }

    void sendAny()
    {
        constexpr std::array<std::uint8_t, 6> kControllers = {7, 11, 64, 76, 77, 78};
        const auto key = static_cast<std::uint8_t>(36 + random_() % 60);
        const auto value = static_cast<std::uint8_t>(1 + random_() % 127);
        if (random_() % 8 == 0)
            send({midi::kControlChange, kControllers[random_() % kControllers.size()], value});
        else if (held_.size() < 6 && random_() % 2 == 0)
            send({midi::kNoteOn, key, value});
        else
            send({midi::kNoteOff, held_.empty() ? key : *held_.begin(), value});
    }

    LiveInput& input_;
    std::mt19937 random_;
    std::mutex mutex_;
    bool plays_ = false;
    std::set<std::uint8_t> held_;
    std::jthread thread_{[this](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            {
                const std::lock_guard lock(mutex_);
                for (unsigned i = random_() % 4; plays_ && i > 0; --i)
                    sendAny();
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }};
};

/// A document with the objects that a window creates for it.
struct OpenSequence {
    /// Runs in real time, or on a clock of its own, which `tick` advances ahead of real time.
    OpenSequence(SequenceHost& host, bool isRealTime)
        : document(
              host, Reading::Musical, isRealTime ? std::function(getTime) : [this] { return now; })
    {
        if (isRealTime)
            clock.emplace(document.transport());
    }
    ~OpenSequence() { document.transport().stop(); }
    OpenSequence(const OpenSequence&) = delete;
    OpenSequence& operator=(const OpenSequence&) = delete;

    void tick()
    {
        now = std::max(now + 1.0 / 1024.0, getTime());
        if (!clock)
            document.transport().tick();
    }

    double now = getTime();
    SequenceDocument document;
    SequenceEditor editor{document};
    RecoveryKeeper keeper{document, RecoveryFile(), std::chrono::milliseconds(100)};
    std::optional<SequenceClock> clock;
};

} // namespace velmora
