#include "sound/PipeSound.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <span>
#include <utility>

namespace velmora {

namespace {

/// What follows the last loop is a release if it is at least so long.
constexpr double kShortestReleaseSeconds = 0.03;

/// The ends of sounds fade this long.
constexpr double kEndSeconds = 0.005;

/// A loop that clicks is mended over at most this time.
constexpr double kMendSeconds = 0.01;

/// A loop that clicks may become a period shorter if it has so many, which are compared at both
/// ends.
constexpr double kPeriodsToSpare = 16.0;
constexpr double kComparedPeriods = 2.0;

/// An end that is worse than the best one so far is noticed after so many samples.
constexpr std::size_t kComparedAtOnce = 64;

/// The sharpest bend where a loop begins again, in relation to those around it, that is not heard
/// as a click.
constexpr double kSharpestJoint = 1.5;

/// The sound is as smooth as it is in so many frames on both sides of the joint.
constexpr std::size_t kAroundJoint = 1024;

std::size_t framesOf(const Pcm& pcm)
{
    return pcm.size() / static_cast<std::size_t>(pcm.channels);
}

/// Calls a function with the samples, of whichever type they are.
template <class Function> void onSamples(Pcm& pcm, const Function& function)
{
    if (pcm.floats.empty())
        function(pcm.samples);
    else
        function(pcm.floats);
}

/// Returns the frames from `begin` to `end`.
Pcm part(const Pcm& pcm, std::size_t begin, std::size_t end)
{
    Pcm result{{}, pcm.channels, pcm.rate};
    const auto channels = static_cast<std::size_t>(pcm.channels);
    const auto take = [&](const auto& from, auto& to) {
        if (!from.empty())
            to.assign(from.begin() + static_cast<std::ptrdiff_t>(begin * channels),
                      from.begin() + static_cast<std::ptrdiff_t>(end * channels));
    };
    take(pcm.samples, result.samples);
    take(pcm.floats, result.floats);
    return result;
}

void cutOff(Pcm& pcm, std::size_t frames)
{
    onSamples(pcm, [&](auto& samples) {
        samples.resize(frames * static_cast<std::size_t>(pcm.channels));
        samples.shrink_to_fit();
    });
}

template <class Value> Value rounded(double value)
{
    if constexpr (std::is_same_v<Value, std::int16_t>)
        return static_cast<std::int16_t>(std::lround(value));
    else
        return static_cast<Value>(value);
}

/// Lets the end of a sound fade away, so that it does not click.
void fadeEnd(Pcm& pcm)
{
    const std::size_t frames = framesOf(pcm);
    const std::size_t fading =
        std::min(frames, static_cast<std::size_t>(kEndSeconds * pcm.rate) + 1);
    const auto channels = static_cast<std::size_t>(pcm.channels);
    onSamples(pcm, [&](auto& samples) {
        using Value = typename std::decay_t<decltype(samples)>::value_type;
        for (std::size_t i = 0; i < fading * channels; ++i) {
            Value& sample = samples[(frames - fading) * channels + i];
            const std::size_t frame = i / channels;
            const auto left = static_cast<double>(fading - 1 - frame);
            sample = rounded<Value>(sample * left / static_cast<double>(fading));
        }
    });
}

/// Returns how sharply the sound bends where the loop begins again, in relation to how it bends
/// around there.
template <class Value>
double jointSharpness(std::span<const Value> samples, std::size_t channels, Loop loop)
{
    double sharpest = 0.0;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const auto at = [&](std::size_t frame) {
            return static_cast<double>(samples[frame * channels + channel]);
        };
        const auto bend = [&](std::size_t a, std::size_t b, std::size_t c) {
            return std::fabs(at(a) - 2.0 * at(b) + at(c));
        };
        const double joint = std::max(bend(loop.end - 2, loop.end - 1, loop.begin),
                                      bend(loop.end - 1, loop.begin, loop.begin + 1));
        double usual = 0.0;
        const std::size_t around = std::min<std::size_t>(loop.length() - 2, kAroundJoint);
        for (std::size_t i = 0; i < around; ++i)
            usual = std::max({usual, bend(loop.begin + i, loop.begin + i + 1, loop.begin + i + 2),
                              bend(loop.end - 3 - i, loop.end - 2 - i, loop.end - 1 - i)});
        if (joint > 0.0)
            sharpest = std::max(sharpest, joint / std::max(usual, 1e-9));
    }
    return sharpest;
}

/// Returns the sum of the squares of the differences of two sounds of the same length.
template <class Value>
double differenceOf(std::span<const Value> sound, std::span<const Value> other)
{
    // Sums that do not wait for each other.
    std::array<double, 4> sums{};
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double one = static_cast<double>(sound[i]) - static_cast<double>(other[i]);
        sums[i % sums.size()] += one * one;
    }
    return sums[0] + sums[1] + sums[2] + sums[3];
}

/// Returns the end of the loop, up to a period earlier, whose surroundings are most like those of
/// the beginning. Short loops keep their length, which is their pitch.
template <class Value> std::uint32_t bestEnd(std::span<const Value> samples, std::size_t channels,
                                             Loop loop, double period)
{
    const bool mayShrink = period >= 1.0 && loop.length() >= kPeriodsToSpare * period;
    const auto compared =
        mayShrink
            ? std::min<std::size_t>(loop.begin, static_cast<std::size_t>(kComparedPeriods * period))
            : 0;
    if (compared == 0)
        return loop.end;
    double least = std::numeric_limits<double>::infinity();
    std::uint32_t best = loop.end;
    for (std::uint32_t end = loop.end; loop.end - end < period; --end) {
        double difference = 0.0;
        for (std::size_t left = compared * channels; left > 0 && difference < least;) {
            const std::size_t block = std::min(left, kComparedAtOnce);
            difference += differenceOf(samples.subspan(loop.begin * channels - left, block),
                                       samples.subspan(end * channels - left, block));
            left -= block;
        }
        if (difference < least) {
            least = difference;
            best = end;
        }
    }
    return best;
}

/// Lets the end of a loop fade into what precedes its beginning, or, without that, its beginning
/// into what follows its end.
template <class Value>
void mend(std::span<Value> samples, std::size_t channels, Loop loop, std::size_t longest)
{
    const std::size_t frames = samples.size() / channels;
    const std::size_t before =
        std::min({longest, std::size_t{loop.begin}, std::size_t{loop.length()}});
    const std::size_t behind = std::min({longest, frames - loop.end, std::size_t{loop.length()}});
    const bool usesBefore = before >= behind;
    const std::size_t fading = std::max(before, behind);
    const std::size_t target = usesBefore ? loop.end - fading : loop.begin;
    const std::size_t other = usesBefore ? loop.begin - fading : loop.end;
    for (std::size_t i = 0; i < fading * channels; ++i) {
        const std::size_t frame = i / channels;
        const double part =
            (static_cast<double>(frame) + 1.0) / (static_cast<double>(fading) + 1.0);
        const double late = 0.5 - 0.5 * std::cos(std::numbers::pi * part);
        Value& sample = samples[target * channels + i];
        const auto added = static_cast<double>(samples[other * channels + i]);
        sample = usesBefore ? rounded<Value>((1.0 - late) * sample + late * added)
                            : rounded<Value>(late * sample + (1.0 - late) * added);
    }
}

/// Mends a loop if it clicks, and returns it with the end that it has now.
Loop mended(Pcm& pcm, Loop loop, double pitch)
{
    const auto channels = static_cast<std::size_t>(pcm.channels);
    const auto longest = static_cast<std::size_t>(kMendSeconds * pcm.rate);
    onSamples(pcm, [&](auto& samples) {
        using Value = typename std::decay_t<decltype(samples)>::value_type;
        const std::span<const Value> sound(samples);
        if (jointSharpness(sound, channels, loop) <= kSharpestJoint)
            return;
        loop.end = bestEnd(sound, channels, loop, pcm.rate / pitch);
        mend(std::span<Value>(samples), channels, loop, longest);
    });
    return loop;
}

/// Returns the longest of the loops that lie within the sound.
std::optional<Loop> longestLoop(const std::vector<Loop>& loops, std::size_t frames)
{
    // A shorter one has no shape.
    constexpr std::uint32_t kShortest = 4;
    std::optional<Loop> result;
    for (const Loop& loop : loops)
        if (loop.begin < loop.end && loop.end <= frames && loop.length() >= kShortest &&
            (!result || loop.length() > result->length()))
            result = loop;
    return result;
}

/// Returns the frame where the release in a recording begins; its length if it has none.
std::size_t releaseOf(const PipeRecording& recording, std::size_t frames)
{
    if (!recording.hasOwnRelease)
        return frames;
    std::size_t begin = frames;
    if (recording.cue && *recording.cue > 0) {
        begin = *recording.cue;
    } else {
        std::size_t last = 0;
        for (const Loop& loop : recording.loops)
            if (loop.end <= frames)
                last = std::max<std::size_t>(last, loop.end);
        begin = last > 0 ? last : frames;
    }
    const auto shortest = static_cast<std::size_t>(kShortestReleaseSeconds * recording.pcm.rate);
    return begin + shortest < frames ? begin : frames;
}

} // namespace

PipeSound makePipeSound(PipeRecording&& recording)
{
    const std::size_t frames = framesOf(recording.pcm);
    PipeSound result;
    result.loop = longestLoop(recording.loops, frames);
    const std::size_t release = releaseOf(recording, frames);
    if (release < frames) {
        result.release = part(recording.pcm, release, frames);
        fadeEnd(result.release);
    }
    if (result.loop)
        result.loop = mended(recording.pcm, *result.loop, recording.pitch);
    cutOff(recording.pcm, result.loop ? result.loop->end : release);
    if (!result.loop)
        fadeEnd(recording.pcm);
    result.attack = std::move(recording.pcm);
    return result;
}

Pcm makeReleaseSound(Pcm&& pcm, std::optional<std::uint32_t> cue)
{
    const std::size_t frames = framesOf(pcm);
    Pcm result = cue && *cue > 0 && *cue < frames ? part(pcm, *cue, frames) : std::move(pcm);
    fadeEnd(result);
    return result;
}

} // namespace velmora
