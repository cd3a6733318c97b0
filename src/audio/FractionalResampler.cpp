#include "audio/FractionalResampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr std::size_t kTaps = FractionalResampler::kTaps;
constexpr std::size_t kPhases = 512;

/// The only nonzero tap at phase 0.
constexpr std::size_t kCentre = kTaps / 2 - 1;

using Taps = std::array<float, kTaps>;

/// The Kaiser window on −1…1. With a beta of 8, images of sound below 20 kHz are attenuated by 80
/// dB at 48 kHz.
double window(double x)
{
    constexpr double kBeta = 8.0;
    const double inside = 1.0 - x * x;
    if (inside <= 0.0)
        return 0.0;
    return std::cyl_bessel_i(0.0, kBeta * std::sqrt(inside)) / std::cyl_bessel_i(0.0, kBeta);
}

double sinc(double x)
{
    const double angle = std::numbers::pi * x;
    return x == 0.0 ? 1.0 : std::sin(angle) / angle;
}

/// Returns the taps of each phase, and of one more for the interpolation.
std::array<Taps, kPhases + 1> makeTable()
{
    std::array<Taps, kPhases + 1> table{};
    for (std::size_t phase = 0; phase <= kPhases; ++phase) {
        const double fraction = static_cast<double>(phase) / kPhases;
        std::array<double, kTaps> taps{};
        double sum = 0.0;
        for (std::size_t tap = 0; tap < kTaps; ++tap) {
            const double x = static_cast<double>(tap) - kCentre - fraction;
            // The sinc is exactly 0 at whole distances; sin() would be slightly off.
            const bool isZero =
                (phase == 0 && tap != kCentre) || (phase == kPhases && tap != kCentre + 1);
            taps[tap] = isZero ? 0.0 : sinc(x) * window(x / (kTaps / 2.0));
            sum += taps[tap];
        }
        for (std::size_t tap = 0; tap < kTaps; ++tap)
            table[phase][tap] = static_cast<float>(taps[tap] / sum);
    }
    return table;
}

const std::array<Taps, kPhases + 1>& table()
{
    static const auto result = makeTable();
    return result;
}

/// Returns the sum of products. Eight partial sums let the compiler use vector registers.
float convolve(const Taps& taps, const float* input)
{
    constexpr std::size_t kLanes = 8;
    std::array<float, kLanes> sums{};
    for (std::size_t tap = 0; tap < kTaps; tap += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            sums[lane] += taps[tap + lane] * input[tap + lane];
    }
    return ((sums[0] + sums[1]) + (sums[2] + sums[3])) +
           ((sums[4] + sums[5]) + (sums[6] + sums[7]));
}

} // namespace

FractionalResampler::FractionalResampler()
{
    table(); // so that the audio thread does not compute it
}

void FractionalResampler::clear()
{
    left_.fill(0.0F);
    right_.fill(0.0F);
    filled_ = kTaps - 1;
    position_ = 0;
    phase_ = 0.0;
}

void FractionalResampler::makeRoom()
{
    std::copy(left_.begin() + static_cast<std::ptrdiff_t>(position_),
              left_.begin() + static_cast<std::ptrdiff_t>(filled_), left_.begin());
    std::copy(right_.begin() + static_cast<std::ptrdiff_t>(position_),
              right_.begin() + static_cast<std::ptrdiff_t>(filled_), right_.begin());
    filled_ -= position_;
    position_ = 0;
}

std::size_t FractionalResampler::mixAvailable(float* left, float* right, std::size_t frames)
{
    if (step_ == 1.0 && phase_ == 0.0) {
        frames = std::min(frames, filled_ - position_ - (kTaps - 1));
        for (std::size_t i = 0; i < frames; ++i) {
            left[i] += left_[position_ + kCentre + i];
            right[i] += right_[position_ + kCentre + i];
        }
        position_ += frames;
        return frames;
    }

    std::size_t done = 0;
    for (; done < frames && filled_ - position_ >= kTaps; ++done) {
        const double scaled = phase_ * kPhases;
        const auto phase = static_cast<std::size_t>(scaled);
        const float between = static_cast<float>(scaled - static_cast<double>(phase));
        const Taps& before = table()[phase];
        const Taps& after = table()[phase + 1];
        Taps taps;
        for (std::size_t tap = 0; tap < kTaps; ++tap)
            taps[tap] = before[tap] + between * (after[tap] - before[tap]);
        left[done] += convolve(taps, left_.data() + position_);
        right[done] += convolve(taps, right_.data() + position_);

        phase_ += step_;
        const auto whole = static_cast<std::size_t>(phase_);
        position_ += whole;
        phase_ -= static_cast<double>(whole);
    }
    return done;
}

} // namespace velmora
