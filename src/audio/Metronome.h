#pragma once

#include "audio/AudioSource.h"
#include "audio/Click.h"
#include "audio/DueEvents.h"
#include "base/LockFreeQueue.h"

#include <atomic>
#include <cstddef>

namespace velmora {

/// Sounds the clicks of a metronome. Each begins exactly at its frame, after the same delay as a
/// note of the same time. A click that begins while another one sounds takes its place.
class Metronome : public AudioSource {
public:
    /// Sounds a click at `time`, in the seconds of `getTime`, or as soon as possible if `time` is
    /// 0. May be called on any thread; it neither waits nor allocates.
    void click(Click click, double time);

    /// Drops the clicks that are due later than `time`. May be called on any thread.
    void cancelAfter(double time);

    /// Sets the volume, a factor from 0 to 1. May be called on any thread.
    void setVolume(float volume) { volume_ = volume; }

    void setRate(double rate) override { rate_ = rate; }
    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    struct Event {
        Click click = Click::Beat;
        bool cancels = false;
        double due = 0.0;
        std::size_t frame = 0;
    };

    /// Far more than a count-in of two bars has.
    static constexpr std::size_t kCapacity = 512;

    void receive();
    void sound(float* samples, std::size_t frames);

    LockFreeQueue<Event> queue_{kCapacity};
    DueEvents<Event> pending_{kCapacity};
    std::atomic<float> volume_{1.0F};
    double rate_ = 48000.0;
    Click sounding_ = Click::Beat;
    double age_ = 1.0; ///< Of the click that sounds, in seconds; it has ended after a tenth.
};

} // namespace velmora
