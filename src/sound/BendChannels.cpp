#include "sound/BendChannels.h"

#include "sound/keys.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kUnitsOfSemitone = 1.0 * BendChannels::kCentre / BendChannels::kRange;

/// A bend of more than this is not kept for notes that follow, because samples would be stretched.
constexpr double kFarthestKeptBend = 1.0;

/// By how many semitones everything is bent too far. See docs/decisions.md, 180.
constexpr double kRaise = 0.005;

/// Returns by how many semitones a bend moves a note, apart from the raise.
double semitonesOf(int bend)
{
    return (bend - BendChannels::kCentre) / kUnitsOfSemitone - kRaise;
}

int bendFor(double semitones)
{
    const double units = std::round((semitones + kRaise) * kUnitsOfSemitone);
    return static_cast<int>(
        std::clamp(BendChannels::kCentre + units, 0.0, 2.0 * BendChannels::kCentre - 1.0));
}

int keyAt(double place)
{
    return static_cast<int>(std::clamp(std::round(place), 0.0, double{kLastKey}));
}

/// The channel of a pitch class. The tenth is for percussion.
std::size_t channelOfClass(std::size_t pitchClass)
{
    return pitchClass == BendChannels::kPercussion ? 12 : pitchClass;
}

} // namespace

BendChannels::Voice BendChannels::start(double place, std::optional<std::size_t> pitchClass,
                                        std::size_t sound)
{
    const std::size_t number = pitchClass ? channelOfClass(*pitchClass) : findChannel(place, sound);
    Channel& channel = channels_[number];
    channel.sound = sound;
    // A bend that fits stays as it is, because earlier notes may still die away.
    int key = keyAt(place - semitonesOf(channel.bend));
    if (!isSounding(number)) {
        if (std::abs(semitonesOf(channel.bend)) > kFarthestKeptBend || !pitchClass)
            key = keyAt(place);
        channel.bend = bendFor(place - key);
    } else if (pitchClass) {
        channel.bend = bendFor(place - key);
    }
    channel.keys.set(static_cast<std::size_t>(key));
    return {number, key, 100.0 * (key + semitonesOf(channel.bend) - place)};
}

std::size_t BendChannels::findChannel(double place, std::size_t sound) const
{
    std::size_t best = 0;
    double least = HUGE_VAL;
    for (std::size_t i = 0; i < kChannels; ++i) {
        const Channel& channel = channels_[i];
        const double rest = place - semitonesOf(channel.bend);
        const int key = keyAt(rest);
        const bool isFree = !channel.keys[static_cast<std::size_t>(key)];
        const bool hasSound = channel.sound == sound;
        // In order: the same bend, the longest silence, the nearest bend.
        double cost = 1e12 + std::abs(rest - key) + (isFree ? 0.0 : 1.0) + (hasSound ? 0.0 : 2.0);
        if (channel.bend == bendFor(place - key) && isFree && hasSound)
            cost = -1.0;
        else if (channel.keys.none())
            cost = static_cast<double>(channel.released);
        if (i != kPercussion && cost < least) {
            best = i;
            least = cost;
        }
    }
    return best;
}

void BendChannels::end(const Voice& voice)
{
    channels_[voice.channel].keys.reset(static_cast<std::size_t>(voice.key));
    channels_[voice.channel].released = ++releases_;
}

void BendChannels::move(std::size_t channel, int key, double place)
{
    channels_[channel].bend = bendFor(place - key);
}

} // namespace velmora
