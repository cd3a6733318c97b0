#include "sequencer/TapTempo.h"

#include <algorithm>
#include <cstddef>

namespace velmora {

namespace {

constexpr double kLongestPause = 2.0; // 30 beats a minute
constexpr std::size_t kMostTaps = 9;

} // namespace

bool TapTempo::goesOn(double time) const
{
    return !times_.empty() && time > times_.back() && time - times_.back() < kLongestPause;
}

std::optional<double> TapTempo::tap(double time)
{
    if (!goesOn(time))
        times_.clear();
    times_.push_back(time);
    if (times_.size() > kMostTaps)
        times_.erase(times_.begin());
    if (times_.size() < 2)
        return std::nullopt;
    std::vector<double> distances;
    for (std::size_t i = 1; i < times_.size(); ++i)
        distances.push_back(times_[i] - times_[i - 1]);
    std::ranges::sort(distances);
    const std::size_t middle = distances.size() / 2;
    const double median = distances.size() % 2 == 1
                              ? distances[middle]
                              : (distances[middle - 1] + distances[middle]) / 2.0;
    return 60.0 / median;
}

} // namespace velmora
