#include "audio/ReleaseAlignment.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace velmora {

namespace {

/// Sounds are compared over this many periods and this time, at about this many points of each
/// period. In a shorter time, the noise of a high pipe would count too much.
constexpr double kWindowPeriods = 2.0;
constexpr double kWindowSeconds = 0.008;
constexpr double kPointsPerPeriod = 32.0;

/// Between two entries the phase is carried on by the period. So long it stays true: a pipe's pitch
/// wanders by about a cent.
constexpr double kEntryPeriods = 32.0;
constexpr double kEntrySeconds = 0.05;
constexpr double kMaximumEntries = 1024.0;

/// By how far the pitch that is claimed for a sound may be wrong.
constexpr double kPitchTolerance = 0.06;

/// What a pitch may mean in frames.
constexpr double kShortestPeriod = 2.0;
constexpr double kLongestPeriod = 1e6;

/// The period is measured over this many periods.
constexpr int kMeasuredPeriods = 64;

constexpr double kCrossfadePeriods = 2.0;
constexpr double kShortestCrossfade = 0.006;
constexpr double kLongestCrossfade = 0.03;

constexpr double kHighestRatio = 4.0;

/// The sum of the products of two sounds, and of the squares of the second.
struct Match {
    double product = 0.0;
    double energy = 0.0;

    double score() const { return energy > 0.0 ? product / std::sqrt(energy) : 0.0; }
};

/// A sound from which every `stride`th frame is looked at.
class Strided {
public:
    Strided(const Pcm& pcm, double period)
        : pcm_(pcm), channels_(static_cast<std::size_t>(pcm.channels)),
          stride_(static_cast<std::size_t>(std::max(1.0, period / kPointsPerPeriod)))
    {
    }

    std::size_t frames() const { return pcm_.size() / channels_; }
    std::size_t stride() const { return stride_; }

    /// Compares `points` frames behind two positions.
    Match compare(std::size_t first, const Strided& other, std::size_t second,
                  std::size_t points) const
    {
        return pcm_.floats.empty() ? compare(std::span(pcm_.samples), first, other, second, points)
                                   : compare(std::span(pcm_.floats), first, other, second, points);
    }

private:
    template <class Value> Match compare(std::span<const Value> mine, std::size_t first,
                                         const Strided& other, std::size_t second,
                                         std::size_t points) const
    {
        return other.pcm_.floats.empty()
                   ? sum(mine, first, other, std::span(other.pcm_.samples), second, points)
                   : sum(mine, first, other, std::span(other.pcm_.floats), second, points);
    }

    template <class Mine, class Others>
    Match sum(std::span<const Mine> mine, std::size_t first, const Strided& other,
              std::span<const Others> others, std::size_t second, std::size_t points) const
    {
        // The common scale of 16 bits and floats.
        constexpr double kMine = std::is_same_v<Mine, float> ? 32768.0 : 1.0;
        constexpr double kOthers = std::is_same_v<Others, float> ? 32768.0 : 1.0;
        const std::size_t channels = std::min(channels_, other.channels_);
        Match result;
        for (std::size_t i = 0; i < points; ++i) {
            for (std::size_t channel = 0; channel < channels; ++channel) {
                const double a = kMine * mine[(first + i * stride_) * channels_ + channel];
                const double b =
                    kOthers * others[(second + i * other.stride_) * other.channels_ + channel];
                result.product += a * b;
                result.energy += b * b;
            }
        }
        return result;
    }

    const Pcm& pcm_;
    std::size_t channels_;
    std::size_t stride_;
};

/// Returns the place of the maximum of a parabola through three values at −1, 0 and 1.
double summit(double before, double here, double after)
{
    const double bend = before - 2.0 * here + after;
    return bend < 0.0 ? std::clamp(0.5 * (before - after) / bend, -0.5, 0.5) : 0.0;
}

/// Returns the number from `low` to `high` with the highest `score`, first in steps, then nearby;
/// with the fraction that a parabola gives.
template <class Score>
double findBest(std::size_t low, std::size_t high, std::size_t step, const Score& score)
{
    std::size_t best = low;
    double highest = score(low);
    const auto consider = [&](std::size_t candidate) {
        const double value = score(candidate);
        if (value > highest) {
            highest = value;
            best = candidate;
        }
    };
    for (std::size_t i = low + step; i <= high; i += step)
        consider(i);
    for (std::size_t near = step / 2; near > 0; near /= 2) {
        const std::size_t middle = best;
        if (middle >= low + near)
            consider(middle - near);
        if (middle + near <= high)
            consider(middle + near);
    }
    if (best == low || best >= high)
        return static_cast<double>(best);
    return static_cast<double>(best) + summit(score(best - 1), highest, score(best + 1));
}

/// Returns the period in frames that a pitch stands for, or one near to it that can be measured.
double claimedPeriod(const Pcm& pcm, double pitch)
{
    return pitch > 0.0 ? std::clamp(pcm.rate / pitch, kShortestPeriod, kLongestPeriod)
                       : kLongestPeriod;
}

/// Returns the period of the end of a sound in frames, which is near to `claimed`.
double measuredPeriod(const Pcm& pcm, double claimed)
{
    const Strided sound(pcm, claimed);
    const auto points = static_cast<std::size_t>(kWindowPeriods * kPointsPerPeriod);
    const std::size_t window = points * sound.stride() + 2;
    double period = claimed;
    double tolerance = kPitchTolerance * claimed;
    for (int periods = 1; periods <= kMeasuredPeriods; periods *= 2) {
        const double lag = period * periods;
        const auto high = static_cast<std::size_t>(lag + tolerance + 1.0);
        const auto low = static_cast<std::size_t>(std::max(1.0, lag - tolerance));
        if (sound.frames() < high + window)
            break;
        const std::size_t begin = sound.frames() - high - window;
        const auto step = std::max<std::size_t>(1, sound.stride() / 2);
        period = findBest(low, high, step,
                          [&](std::size_t candidate) {
                              return sound.compare(begin, sound, begin + candidate, points).score();
                          }) /
                 periods;
        tolerance = std::max(2.0, 2.0 * static_cast<double>(sound.stride()));
        if (2.0 * tolerance > claimed)
            tolerance = claimed / 4.0;
    }
    return period;
}

} // namespace

ReleaseAlignment::ReleaseAlignment(const Pcm& attack, double attackPitch, const Pcm& release,
                                   double releasePitch)
    : attackPeriod_(measuredPeriod(attack, claimedPeriod(attack, attackPitch))),
      releasePeriod_(claimedPeriod(release, releasePitch) * attackPeriod_ /
                     claimedPeriod(attack, attackPitch)),
      crossfadeSeconds_(std::clamp(kCrossfadePeriods * attackPeriod_ / attack.rate,
                                   kShortestCrossfade, kLongestCrossfade))
{
    const Strided from(attack, attackPeriod_);
    // Both must step by the same time.
    const Strided to(release, releasePeriod_);
    const auto points = static_cast<std::size_t>(
        std::max(kWindowPeriods * attackPeriod_, kWindowSeconds * attack.rate) /
        static_cast<double>(from.stride()));
    const std::size_t window = points * from.stride();
    const auto last = static_cast<std::size_t>(1.0 + releasePeriod_);
    if (from.frames() <= window || to.frames() <= last + points * to.stride())
        return;

    const auto length = static_cast<double>(from.frames());
    spacing_ = std::max({std::min(kEntryPeriods * attackPeriod_, kEntrySeconds * attack.rate),
                         length / kMaximumEntries, attackPeriod_});
    entries_.resize(static_cast<std::size_t>(length / spacing_) + 1);
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        double position = static_cast<double>(i) * spacing_;
        const double beyond = position + static_cast<double>(window) - length;
        double shift = 0.0;
        if (beyond > 0.0)
            position -= std::min(position, std::ceil(beyond / attackPeriod_) * attackPeriod_);
        const auto first = static_cast<std::size_t>(position);
        shift = (position - static_cast<double>(first)) * releasePeriod_ / attackPeriod_;
        const double best = findBest(1, last, to.stride(), [&](std::size_t candidate) {
            return from.compare(first, to, candidate, points).score();
        });
        const double energy = from.compare(first, from, first, points).energy;
        const double other = from.compare(first, to, static_cast<std::size_t>(best), points).energy;
        entries_[i] = {static_cast<float>(best + shift),
                       other > 0.0
                           ? static_cast<float>(std::min(std::sqrt(energy / other), kHighestRatio))
                           : 1.0F};
    }
}

ReleaseAlignment::Entry ReleaseAlignment::at(double position) const
{
    if (entries_.empty())
        return {};
    const double place =
        std::clamp(position / spacing_, 0.0, static_cast<double>(entries_.size() - 1));
    const auto nearest = static_cast<std::size_t>(std::lround(place));
    Entry entry = entries_[nearest];
    const double ahead = (position - static_cast<double>(nearest) * spacing_) / attackPeriod_;
    const double frame = entry.frame - 1.0 + (ahead - std::floor(ahead)) * releasePeriod_;
    entry.frame =
        static_cast<float>(1.0 + frame - std::floor(frame / releasePeriod_) * releasePeriod_);
    return entry;
}

} // namespace velmora
