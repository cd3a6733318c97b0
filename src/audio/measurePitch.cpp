#include "audio/measurePitch.h"

#include "audio/Pcm.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <numbers>
#include <vector>

namespace velmora {

namespace {

using Complex = std::complex<double>;

constexpr double kTurn = 2.0 * std::numbers::pi;

/// Of the windows that follow a partial: long enough to keep its neighbours out.
constexpr double kLeastWindow = 0.03; ///< In seconds.
constexpr double kPitchWindowPeriods = 6.0;
constexpr std::size_t kWindowsInWindow = 4; ///< How many begin within the length of one.
constexpr std::size_t kLeastWindows = 8;

/// How far a phase may turn away from one window to the next, which limits their distance: half a
/// semitone is 0.03 of the frequency, and half a turn the limit.
constexpr double kUnambiguous = 2.0 * 0.035;

constexpr double kSemitone = 100.0; ///< In cents.

/// Amplitudes and phases of a partial, window by window.
class Partial {
public:
    Partial(std::span<const float> sound, double rate, double hertz, std::size_t window)
        : hop_(std::clamp<std::size_t>(static_cast<std::size_t>(rate / (hertz * kUnambiguous)), 1,
                                       window / kWindowsInWindow)),
          rate_(rate), hertz_(hertz)
    {
        std::vector<Complex> kernel(window);
        for (std::size_t i = 0; i < window; ++i) {
            const double place = static_cast<double>(i);
            const double weight =
                0.5 - 0.5 * std::cos(kTurn * (place + 0.5) / static_cast<double>(window));
            kernel[i] = std::polar(weight, -kTurn * std::fmod(hertz * place / rate, 1.0));
        }
        for (std::size_t first = 0; first + window <= sound.size(); first += hop_) {
            Complex sum;
            for (std::size_t i = 0; i < window; ++i)
                sum += static_cast<double>(sound[first + i]) * kernel[i];
            const double turns = std::fmod(hertz * static_cast<double>(first) / rate, 1.0);
            values_.push_back(sum * std::polar(1.0, -kTurn * turns));
        }
    }

    std::size_t size() const { return values_.size(); }

    double power() const
    {
        double sum = 0.0;
        for (const Complex& value : values_)
            sum += std::norm(value);
        return sum;
    }

    /// Returns the frequency from the turning of the phase, over longer and longer distances.
    double hertz() const
    {
        double turning = 0.0; // per window, in radians
        for (std::size_t apart = 1; apart <= std::max<std::size_t>(1, size() / 3); apart *= 2) {
            Complex sum;
            for (std::size_t i = 0; i + apart < size(); ++i)
                sum += values_[i + apart] * std::conj(values_[i]);
            const double steps = static_cast<double>(apart);
            turning += std::arg(sum * std::polar(1.0, -turning * steps)) / steps;
        }
        return hertz_ + turning / kTurn * rate_ / static_cast<double>(hop_);
    }

    /// The swing of the level in decibels around a straight line, weighted by the power.
    double swing() const
    {
        double weights = 0.0, times = 0.0, levels = 0.0;
        const auto level = [this](std::size_t i) {
            return 10.0 * std::log10(std::norm(values_[i]) + std::numeric_limits<double>::min());
        };
        for (std::size_t i = 0; i < size(); ++i) {
            const double weight = std::norm(values_[i]);
            weights += weight;
            times += weight * static_cast<double>(i);
            levels += weight * level(i);
        }
        const double time = times / weights, middle = levels / weights;
        double spread = 0.0, slope = 0.0, variance = 0.0;
        for (std::size_t i = 0; i < size(); ++i) {
            const double weight = std::norm(values_[i]) / weights;
            const double away = static_cast<double>(i) - time;
            spread += weight * away * away;
            slope += weight * away * (level(i) - middle);
            variance += weight * (level(i) - middle) * (level(i) - middle);
        }
        return std::sqrt(std::max(0.0, variance - (spread > 0.0 ? slope * slope / spread : 0.0)));
    }

private:
    std::size_t hop_; ///< In frames.
    double rate_, hertz_;
    std::vector<Complex> values_;
};

} // namespace

std::optional<MeasuredPitch> measurePitch(std::span<const float> sound, double rate,
                                          double expectedHertz)
{
    constexpr int kPartials = 6;
    constexpr double kFarWeaker = 0.01; // in power
    const auto window = static_cast<std::size_t>(
        rate * std::max(kLeastWindow, kPitchWindowPeriods / expectedHertz));
    std::optional<Partial> best;
    double bestPower = 0.0;
    int number = 0;
    for (int i = 1; i <= kPartials && i * expectedHertz < 0.45 * rate; ++i) {
        Partial partial(sound, rate, i * expectedHertz, window);
        const double power = partial.power() * (i == 1 ? 1.0 / kFarWeaker : 1.0);
        if (partial.size() < kLeastWindows || !(power > bestPower))
            continue;
        best = std::move(partial);
        bestPower = power;
        number = i;
    }
    if (!best)
        return std::nullopt;
    const double hertz = best->hertz() / number;
    if (!(std::fabs(1200.0 * std::log2(hertz / expectedHertz)) < kSemitone / 2.0))
        return std::nullopt;
    return MeasuredPitch{hertz, best->swing()};
}

std::optional<MeasuredPitch> measurePitch(const Pcm& recording, double expectedHertz)
{
    constexpr double kAttack = 0.2, kMost = 2.0; // in seconds
    const auto channels = static_cast<std::size_t>(recording.channels);
    const std::size_t frames = recording.size() / channels;
    const auto attack = static_cast<std::size_t>(kAttack * recording.rate);
    const std::size_t first = std::min(attack, frames / 4);
    const std::size_t last =
        std::min(frames, first + static_cast<std::size_t>(kMost * recording.rate));
    std::vector<float> sound;
    sound.reserve(last - first);
    for (std::size_t i = first * channels; i < last * channels; i += channels)
        sound.push_back(recording.floats.empty()
                            ? static_cast<float>(recording.samples[i]) / 32768.0F
                            : recording.floats[i]);
    return measurePitch(sound, recording.rate, expectedHertz);
}

} // namespace velmora
