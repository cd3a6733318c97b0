#pragma once

#include <optional>
#include <span>

namespace velmora {

struct Pcm;

/// The pitch of a sound that is held.
struct MeasuredPitch {
    double hertz = 0.0;

    /// How much the level of its partial swings, in decibels (the standard deviation, apart from a
    /// steady decay). From about 2 on several tones beat, or there is no tone.
    double swing = 0.0;
};

/// Measures the pitch that an ear hears in a mono sound which should have `expectedHertz`; up to
/// half a semitone off. This is the mean of the frequencies of the first partials, each of which
/// counts by its amplitude, as a vibrato or a drift is averaged, by its power. Empty if the sound
/// is too short, silent or out of that range. The sound should begin behind its attack and last a
/// second; a tenth is the least.
std::optional<MeasuredPitch> measurePitch(std::span<const float> sound, double rate,
                                          double expectedHertz);

/// Measures a recording. Skips its attack.
std::optional<MeasuredPitch> measurePitch(const Pcm& recording, double expectedHertz);

} // namespace velmora
