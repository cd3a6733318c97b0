#pragma once

#include <cstddef>
#include <span>

namespace velmora {

/// A simple frequency ratio between two notes, from 1/1 to 2/1. Partials of the notes coincide, so
/// that they do not beat.
struct JustInterval {
    int numerator, denominator;

    double cents() const;
    bool operator==(const JustInterval&) const = default;
};

/// The just intervals in ascending order: all ratios of numbers up to seven, apart from factors of
/// two, and the seconds and sevenths of the scales that are made of them.
std::span<const JustInterval> justIntervals();

/// Returns how often per second two notes beat that are tuned nearly in a ratio: the difference
/// between the lowest partials that coincide if they are pure. Frequencies are in hertz; one that
/// the ratio calls the lower comes first.
double beatRate(double lower, double upper, int numerator, int denominator);

/// An interval as it is heard.
struct HeardInterval {
    double cents = 0.0;      ///< Its size, at least 0.
    std::size_t nearest = 0; ///< The position in `justIntervals` of what is left above octaves.
    int octaves = 0;         ///< Above which `nearest` lies.
    double distance = 0.0;   ///< From pure in cents, positive if it is too wide.
    double beatsPerSecond = 0.0;

    bool operator==(const HeardInterval&) const = default;
};

/// Measures the interval between two notes in hertz, in either order.
HeardInterval hear(double one, double other);

/// Measures the interval between two notes in hertz as a wide or narrow ratio, even if another one
/// is nearer. The octave in which the notes lie does not matter for its size.
HeardInterval hearAs(const JustInterval& just, double lower, double upper);

/// How far from pure an interval is, in steps that are easy to hear in steady sounds.
enum class Purity : unsigned char {
    None,     ///< There is no interval.
    Pure,     ///< The notes beat slowly, if at all.
    Tempered, ///< The notes beat, as most intervals of well temperaments do.
    Rough,    ///< The distance is that of a Pythagorean third or more.
};

/// The largest distances from pure of pure and tempered intervals, in cents.
constexpr double kPureWithin = 6.0, kTemperedWithin = 16.0;

Purity purityOf(double distance);

} // namespace velmora
