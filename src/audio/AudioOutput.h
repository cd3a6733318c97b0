#pragma once

#include "audio/AudioSource.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>

namespace velmora {

/// The machine's sound output, at the shortest period it offers.
class AudioOutput {
public:
    /// Opens JACK, PulseAudio or ALSA, whichever answers first; silent until `play`. Null when
    /// there is no output: that is logged.
    static std::unique_ptr<AudioOutput> open();

    virtual ~AudioOutput() = default;

    /// Sounds `source` from the next period on; null for silence. A source is let go of only when
    /// this returns, so it may be destroyed then.
    virtual void play(AudioSource* source) = 0;

    /// What plays it: "jack", "pulseaudio" or "alsa".
    virtual const std::string& driver() const = 0;

    /// Frames in a second.
    virtual double rate() const = 0;

    /// Frames in a period as it was got; 0 until the first period has been played.
    virtual std::size_t period() const = 0;
};

} // namespace velmora
