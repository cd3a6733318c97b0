#pragma once

#include "sound/Sound.h"

namespace velmora {

/// One key of one stop: an OpenAL source that plays the buffer of a sound at the pitch of the key.
/// It has no source until `setBuffer` is called; until then the other functions have no effect.
class Sample {
public:
    Sample() = default;
    Sample(Sample&& other) noexcept;
    Sample& operator=(Sample&& other) noexcept;
    ~Sample();

    /// Sets the sound, whose own pitch is `rootPitch` hertz, and ends the previous one. The sound
    /// must outlive the sample. Throws FormatError if OpenAL has no source left.
    void setBuffer(const Sound& sound, double rootPitch);

    /// Starts the sound with the gain `volume`, from its beginning if it is already playing.
    void play(float volume);

    /// Releases the key, so that `fade` ends the sound.
    void stop();

    /// Ends the sound at once.
    void silence();

    bool isPlaying() const;

    /// Multiplies the gain of a released key by `factor`, and ends the sound below a gain of 0.02.
    void fade(double factor);

    /// Sets the pitch in hertz. Calls OpenAL only if the pitch has changed.
    void tune(double pitch);

    /// The OpenAL name of the source; 0 without one.
    unsigned source() const { return source_; }

    /// The sound that the source plays; null without a source.
    const Sound* sound() const { return sound_; }

    double rootPitch() const { return rootPitch_; }
    bool released() const { return released_; }

private:
    const Sound* sound_ = nullptr;
    unsigned source_ = 0;
    bool released_ = false;
    float factor_ = 1.0F; ///< The key's pitch divided by the root pitch.
    double rootPitch_ = 0.0;
    double gain_ = 0.0;
};

} // namespace velmora
