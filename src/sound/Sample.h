#pragma once

#include "audio/SampleEvent.h"
#include "sound/Sound.h"

namespace velmora {

/// One key of one stop, which plays a sound at the pitch of the key. It knows what the renderer
/// plays only by what it has asked for. It has no source until `setBuffer` is called; until then
/// the other functions have no effect.
class Sample {
public:
    /// Sets the sound, whose own pitch is `rootPitch` hertz, and removes the previous one, which
    /// must be silent. The sound must outlive the sample. Throws FormatError if OpenAL has no
    /// source left.
    void setBuffer(const Sound& sound, double rootPitch);

    /// Starts the sound with the gain `volume`, from its beginning if it is already playing.
    void play(float volume);

    /// Releases the key, so that the sound dies away.
    void stop();

    /// Notes that the renderer has ended the sound.
    void silence();

    /// Multiplies the gain of a released key by `factor`; the sound has ended below 0.02. The
    /// renderer steps the gain that is heard itself.
    void fade(double factor);

    /// Sets the pitch in hertz. Tells the renderer only if the pitch of a sound that plays has
    /// changed.
    void tune(double pitch);

    /// The OpenAL name of the source; 0 without one.
    unsigned source() const { return source_; }

    /// The sound that the source plays; null without a source.
    const Sound* sound() const { return sound_; }

    double rootPitch() const { return rootPitch_; }
    double gain() const { return gain_; }
    bool released() const { return released_; }

    /// True if the sound was started and has not faded away.
    bool isPlaying() const { return isPlaying_; }

    /// The pitch divided by the root pitch.
    float factor() const { return factor_; }

private:
    const Sound* sound_ = nullptr;
    SampleId id_;
    unsigned source_ = 0;
    bool released_ = false;
    bool isPlaying_ = false;
    float factor_ = 1.0F;
    double rootPitch_ = 0.0;
    double gain_ = 0.0;
};

} // namespace velmora
