#include "support/Pitch.h"

#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>

namespace velmora {

namespace {

/// Returns the amplitude and phase at `hertz` in `length` frames from `first` on, under a Hann
/// window. The phase is measured at the middle of the window.
std::complex<double> partial(std::span<const float> sound, double rate, double hertz,
                             std::size_t first, std::size_t length)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    std::complex<double> sum;
    for (std::size_t i = 0; i < length; ++i) {
        const double weight = 0.5 - 0.5 * std::cos(kTurn * (static_cast<double>(i) + 0.5) /
                                                   static_cast<double>(length));
        const double turns = hertz * static_cast<double>(first + i) / rate;
        sum += weight * static_cast<double>(sound[first + i]) *
               std::polar(1.0, -kTurn * (turns - std::floor(turns)));
    }
    return sum;
}

} // namespace

double measuredHertz(std::span<const float> sound, double rate, double nearHertz)
{
    // Each round uses longer windows, farther apart. The first corrects an error of many hertz; the
    // last is the most precise.
    double hertz = nearHertz;
    for (const std::size_t parts : {64, 16, 4, 2}) {
        const std::size_t window = sound.size() / parts;
        const std::size_t last = sound.size() - window;
        const std::size_t apart = std::min(last, window);
        const auto early = partial(sound, rate, hertz, (last - apart) / 2, window);
        const auto late = partial(sound, rate, hertz, (last + apart) / 2, window);
        const double turns = std::arg(late / early) / (2.0 * std::numbers::pi);
        hertz += turns * rate / static_cast<double>(apart);
    }
    return hertz;
}

} // namespace velmora
