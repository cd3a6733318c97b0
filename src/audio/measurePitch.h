#pragma once

#include <optional>
#include <span>

namespace velmora {

struct Pcm;

/// The pitch of a sound that is held.
struct MeasuredPitch {
    double hertz = 0.0;

    /// How much the level of its partial swings, in decibels (the standard deviation, apart from a
    /// steady decay).
    double swing = 0.0;
};

/// Sounds that swing more than this have several tones that beat, or none: about 2.5 for strings
/// and choirs, below 1.5 for everything with one pitch. In decibels.
constexpr double kBeatingSwing = 2.2;

/// Measures the pitch that an ear hears in a mono sound which should have `expectedHertz`; up to
/// half a semitone off. This is the mean of the frequencies of the first partials, each of which
/// counts by its amplitude, as a vibrato or a drift is averaged, by its power. Empty if the sound
/// is too short, silent or out of that range. The sound should begin behind its attack and last a
/// second; a tenth is the least.
std::optional<MeasuredPitch> measurePitch(std::span<const float> sound, double rate,
                                          double expectedHertz);

/// Measures 0.3 seconds of a recording, or 24 periods if they are longer. Skips its attack.
std::optional<MeasuredPitch> measurePitch(const Pcm& recording, double expectedHertz);

} // namespace velmora
