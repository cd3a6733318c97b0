#pragma once

#include "audio/ReleaseAlignment.h"
#include "audio/SampleEvent.h"
#include "audio/SampleSources.h"
#include "sound/Sound.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace velmora {

/// One key of one stop, which plays sounds at the pitch of the key. It knows what the renderer
/// plays only by what it has asked for. It has no source until it is given a sound; until then the
/// other functions have no effect.
///
/// The sounds must outlive the sample, which must be silent while sounds are added.
class Sample {
public:
    /// A sound that the key starts.
    struct Attack {
        const Sound* sound = nullptr;
        double rootPitch = 0.0; ///< The sound's own pitch in hertz.
        float gain = 1.0F;
        float softest = 0.0F; ///< The velocities that it is for, from 0 to 1.
        float loudest = 1.0F;
    };

    /// A sound that follows when the key is released.
    struct Release {
        const Sound* sound = nullptr; ///< On the device of the attacks' sounds.
        double rootPitch = 0.0;       ///< The sound's own pitch in hertz.
        float gain = 1.0F;            ///< Counts where it does not continue the attack.
        /// It is for keys that were held at most so long, in seconds.
        double longestHeld = std::numeric_limits<double>::infinity();
        /// How it continues each of the attacks, in their order. Where that is missing or null, it
        /// sounds from its beginning while the attack dies away.
        std::vector<std::shared_ptr<const ReleaseAlignment>> alignments{};
    };

    /// Sets the only sound, whose own pitch is `rootPitch` hertz, and removes the previous ones.
    /// Throws FormatError if OpenAL has no source left.
    void setBuffer(const Sound& sound, double rootPitch);

    /// Adds a sound. Those for the same velocity take turns. Must be called before releases are
    /// added. Throws as above.
    void addAttack(const Attack& attack);

    /// Adds a release. If several are for the attack that sounds, the one with the lowest
    /// sufficient `longestHeld` is heard; those that continue it come before those that do not.
    /// Throws as above.
    void addRelease(const Release& release);

    /// Lets every sound play to its end, whenever the key is released.
    void setPercussive() { isPercussive_ = true; }

    /// Sets the pitch in hertz for good, whatever the temperament, as for drums. Must be called
    /// after an attack was added.
    void fixPitch(double pitch);

    /// Starts a sound for the velocity with the gain `volume`; what is already playing ends. The
    /// gain of `swell`, a group of samples, is applied to it.
    void play(float volume, float velocity = 1.0F, std::uint8_t swell = 0);

    /// Releases the key, so that the sound dies away.
    void stop();

    /// Notes that the renderer has ended the sound.
    void silence();

    /// Notes that a step of a fade has passed since the key was released: what dies away without a
    /// release multiplies its gain by `factor`, and has ended below 0.02. The renderer steps the
    /// gain that is heard itself.
    void fade(double factor);

    /// Sets the pitch in hertz. Tells the renderer only if the pitch of a sound that plays has
    /// changed.
    void tune(double pitch);

    /// The OpenAL name of the first attack's source; 0 without one.
    unsigned source() const;

    /// The sound of the first attack; null without one.
    const Sound* sound() const { return attacks_.empty() ? nullptr : attacks_.front().sound; }

    /// The root pitch of the first attack; 0 without one.
    double rootPitch() const { return attacks_.empty() ? 0.0 : attacks_.front().rootPitch; }

    const std::vector<Attack>& attacks() const { return attacks_; }
    const std::vector<Release>& releases() const { return releases_; }

    double gain() const { return gain_; }
    bool released() const { return released_; }

    /// True if the sound was started and has not faded away.
    bool isPlaying() const { return isPlaying_; }

    /// The pitch divided by the root pitch.
    float factor() const { return factor_; }

private:
    /// An attack or a release in the renderer.
    struct Source {
        SampleId id;
        std::uint64_t lastStart = 0; ///< Of an attack: the starts before its last one.
    };

    static Source sourceFor(const Sound& sound, SampleSources::Use use);
    void add(const Attack& attack, SampleSources::Use use);
    std::vector<FollowingSound> releasesOf(std::size_t attack) const;
    std::size_t attackFor(float velocity) const;
    float factorOf(double rootPitch) const;
    bool playsToItsEnd() const;
    double longestRelease() const;

    std::vector<Attack> attacks_;
    std::vector<Release> releases_;
    std::vector<Source> sources_; ///< Of the attacks, then of the releases.

    /// By attack: the releases, as the renderer chooses from them.
    std::vector<std::vector<FollowingSound>> following_;

    std::size_t attack_ = 0; ///< That was started last.
    std::uint64_t starts_ = 0;
    bool released_ = false;
    bool isPlaying_ = false;
    bool isPercussive_ = false;
    bool hasFixedPitch_ = false;
    float factor_ = 1.0F;
    double gain_ = 0.0;
    double tail_ = 0.0; ///< Seconds for which a released sound may go on without a fade.
};

} // namespace velmora
