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

/// The windows that follow a partial last at least so many of its fundamental's periods, which
/// keeps its neighbours out: they are twice as far away as the window reaches.
constexpr double kLeastPeriods = 8.0;
/// Longer windows keep more noise out, but must reach half a semitone around the last partial.
constexpr double kMostPeriods = 11.0;
constexpr double kUsualWindow = 0.03;       ///< In seconds.
constexpr std::size_t kWindowsInWindow = 4; ///< How many begin within the length of one.
constexpr std::size_t kLeastWindows = 8;

constexpr int kPartials = 6; ///< The lowest ones, which the ear follows.
/// Beside the strongest partial, in power: what is softer is taken for noise, and a fundamental
/// that is far weaker does not show the swing of the sound.
constexpr double kNoise = 1e-3;
constexpr double kFarWeaker = 0.01;

constexpr double kRange = 50.0; ///< In cents.

/// Returns a Blackman-Harris window.
std::vector<double> windowOf(std::size_t frames)
{
    std::vector<double> window(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        const double turn = kTurn * (static_cast<double>(i) + 0.5) / static_cast<double>(frames);
        window[i] = 0.35875 - 0.48829 * std::cos(turn) + 0.14128 * std::cos(2.0 * turn) -
                    0.01168 * std::cos(3.0 * turn);
    }
    return window;
}

/// Amplitudes and phases of a partial, window by window.
class Partial {
public:
    Partial(std::span<const float> sound, double rate, double hertz,
            const std::vector<double>& window)
        : hop_(std::max<std::size_t>(1, window.size() / kWindowsInWindow)), rate_(rate),
          hertz_(hertz)
    {
        std::vector<Complex> kernel(window.size());
        const Complex step = std::polar(1.0, -kTurn * hertz / rate);
        Complex turned = 1.0;
        for (std::size_t i = 0; i < window.size(); ++i) {
            kernel[i] = window[i] * turned;
            turned *= step;
        }
        for (std::size_t first = 0; first + window.size() <= sound.size(); first += hop_) {
            Complex sum;
            for (std::size_t i = 0; i < window.size(); ++i)
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

    /// Returns how far its mean frequency is from the expected one. See docs/decisions.md, 177.
    double cents() const
    {
        Complex turning; // from one window to the next
        for (std::size_t i = 0; i + 1 < size(); ++i)
            turning += values_[i + 1] * std::conj(values_[i]);
        const double off = std::arg(turning) / kTurn * rate_ / static_cast<double>(hop_);
        return 1200.0 * std::log2(1.0 + off / hertz_);
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
    const double seconds =
        std::clamp(kUsualWindow, kLeastPeriods / expectedHertz, kMostPeriods / expectedHertz);
    const auto frames = static_cast<std::size_t>(rate * seconds);
    if (sound.size() < frames + (kLeastWindows - 1) * (frames / kWindowsInWindow))
        return std::nullopt;
    const std::vector<double> window = windowOf(frames);
    std::vector<Partial> partials;
    std::vector<double> powers;
    for (int i = 1; i <= kPartials && i * expectedHertz < 0.45 * rate; ++i) {
        partials.emplace_back(sound, rate, i * expectedHertz, window);
        powers.push_back(partials.back().power());
    }
    if (powers.empty())
        return std::nullopt;
    const auto strongest = std::ranges::max_element(powers);
    double weights = 0.0, sum = 0.0;
    for (std::size_t i = 0; i < partials.size(); ++i) {
        const double cents = partials[i].cents();
        if (!(powers[i] > kNoise * *strongest) || !(std::fabs(cents) < kRange))
            continue;
        weights += std::sqrt(powers[i]);
        sum += std::sqrt(powers[i]) * cents;
    }
    if (weights == 0.0)
        return std::nullopt;
    const auto leading = powers.front() > kFarWeaker * *strongest ? 0 : strongest - powers.begin();
    return MeasuredPitch{expectedHertz * std::exp2(sum / weights / 1200.0),
                         partials[static_cast<std::size_t>(leading)].swing()};
}

std::optional<MeasuredPitch> measurePitch(const Pcm& recording, double expectedHertz)
{
    constexpr double kAttack = 0.2; // in seconds
    const double most = std::max(0.3, 3.0 * kLeastPeriods / expectedHertz);
    const auto channels = static_cast<std::size_t>(recording.channels);
    const std::size_t frames = recording.size() / channels;
    const auto attack = static_cast<std::size_t>(kAttack * recording.rate);
    const std::size_t first = std::min(attack, frames / 4);
    const std::size_t last =
        std::min(frames, first + static_cast<std::size_t>(most * recording.rate));
    std::vector<float> sound;
    sound.reserve(last - first);
    for (std::size_t i = first * channels; i < last * channels; i += channels)
        sound.push_back(recording.floats.empty()
                            ? static_cast<float>(recording.samples[i]) / 32768.0F
                            : recording.floats[i]);
    return measurePitch(sound, recording.rate, expectedHertz);
}

} // namespace velmora
