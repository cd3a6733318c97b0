#pragma once

#include "audio/AudioSource.h"

#include <cstddef>
#include <memory>
#include <string>

namespace velmora {

/// The audio output of the machine, with the shortest period that it offers.
class AudioOutput {
public:
    /// Opens the first of JACK, PulseAudio and ALSA that is available. The output is silent until
    /// `play` is called. If there is none, logs that and returns null.
    static std::unique_ptr<AudioOutput> open();

    virtual ~AudioOutput() = default;

    /// Plays `source` from the next period on; null for silence. Once this returns, the previous
    /// source is no longer used and may be destroyed.
    virtual void play(AudioSource* source) = 0;

    /// "jack", "pulseaudio" or "alsa".
    virtual const std::string& driver() const = 0;

    /// The sample rate in hertz.
    virtual double rate() const = 0;

    /// The actual length of a period in frames; 0 until the first one has been played.
    virtual std::size_t period() const = 0;
};

} // namespace velmora
