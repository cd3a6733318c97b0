#include "tuning/intervals.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr std::array<JustInterval, 20> kJust = {
    {{1, 1},  {16, 15}, {10, 9}, {9, 8}, {8, 7},  {7, 6}, {6, 5},  {5, 4}, {4, 3},  {7, 5},
     {10, 7}, {3, 2},   {8, 5},  {5, 3}, {12, 7}, {7, 4}, {16, 9}, {9, 5}, {15, 8}, {2, 1}}};

constexpr double kOctaveInCents = 1200.0;

} // namespace

double JustInterval::cents() const
{
    return kOctaveInCents * std::log2(static_cast<double>(numerator) / denominator);
}

std::span<const JustInterval> justIntervals()
{
    return kJust;
}

double beatRate(double lower, double upper, int numerator, int denominator)
{
    return std::abs(upper * denominator - lower * numerator);
}

HeardInterval hear(double one, double other)
{
    const double lower = std::min(one, other), upper = std::max(one, other);
    HeardInterval heard;
    heard.cents = kOctaveInCents * std::log2(upper / lower);
    heard.octaves = static_cast<int>(heard.cents / kOctaveInCents);
    const double rest = heard.cents - kOctaveInCents * heard.octaves;
    const auto nearest = std::ranges::min_element(
        kJust, {}, [rest](const JustInterval& just) { return std::abs(just.cents() - rest); });
    heard.nearest = static_cast<std::size_t>(nearest - kJust.begin());
    // Like a narrow octave, a wide one is not a unison above an octave.
    if (nearest->numerator == 1 && heard.octaves > 0) {
        heard.nearest = kJust.size() - 1;
        --heard.octaves;
    }
    const JustInterval& just = kJust[heard.nearest];
    heard.distance = heard.cents - kOctaveInCents * heard.octaves - just.cents();
    // An octave doubles the ratio, which stays in its lowest terms.
    int numerator = just.numerator, denominator = just.denominator;
    for (int octave = 0; octave < heard.octaves; ++octave) {
        if (denominator % 2 == 0)
            denominator /= 2;
        else
            numerator *= 2;
    }
    heard.beatsPerSecond = beatRate(lower, upper, numerator, denominator);
    return heard;
}

HeardInterval hearAs(const JustInterval& just, double lower, double upper)
{
    const double octaves =
        std::round((kOctaveInCents * std::log2(upper / lower) - just.cents()) / kOctaveInCents);
    const double raised = upper / std::exp2(octaves);
    HeardInterval heard;
    heard.cents = kOctaveInCents * std::log2(raised / lower);
    heard.nearest = static_cast<std::size_t>(std::ranges::find(kJust, just) - kJust.begin());
    heard.distance = heard.cents - just.cents();
    heard.beatsPerSecond = beatRate(lower, raised, just.numerator, just.denominator);
    return heard;
}

Purity purityOf(double distance)
{
    const double size = std::abs(distance);
    return size <= kPureWithin       ? Purity::Pure
           : size <= kTemperedWithin ? Purity::Tempered
                                     : Purity::Rough;
}

} // namespace velmora
