#pragma once

#include "sound/Sound.h"

namespace velmora {

/// What one key of one stop sounds: an OpenAL source that plays the buffer of a sound, at the pitch
/// of the key. Without a source until `setBuffer`: then nothing else has an effect.
class Sample {
public:
    Sample() = default;
    Sample(Sample&& other) noexcept;
    Sample& operator=(Sample&& other) noexcept;
    ~Sample();

    /// Gives the key a sound, which sounds at `rootPitch` hertz when played as it is; ends one that
    /// it had. The sound must outlive the sample. Throws FormatError when OpenAL has no source
    /// left.
    void setBuffer(const Sound& sound, double rootPitch);

    /// Starts the sound at a gain; a key that sounds already begins anew.
    void play(float volume);

    /// Releases the key: `fade` lets the sound die away.
    void stop();

    /// Ends the sound at once.
    void silence();

    bool isPlaying() const;

    /// One step in the decay of a released key, which ends below a gain of 0.02.
    void fade(double factor);

    /// Sounds at `pitch` hertz from now on. Calls OpenAL only for a pitch other than the last one.
    void tune(double pitch);

    /// The OpenAL name of the source; 0 without one.
    unsigned source() const { return source_; }

    /// What the source plays; null without one.
    const Sound* sound() const { return sound_; }

    double rootPitch() const { return rootPitch_; }
    double gain() const { return gain_; }
    bool released() const { return released_; }

private:
    const Sound* sound_ = nullptr;
    unsigned source_ = 0;
    bool released_ = false;
    float factor_ = 1.0F; ///< The pitch of the source: that of the key by the root pitch.
    double rootPitch_ = 0.0;
    double gain_ = 0.0;
};

} // namespace velmora
