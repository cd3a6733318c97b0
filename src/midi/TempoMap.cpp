#include "midi/TempoMap.h"

#include <algorithm>
#include <iterator>

namespace velmora {

namespace {

constexpr double kDefaultSecondsPerBeat = 0.5;

} // namespace

TempoMap::TempoMap(std::vector<TempoChange> changes)
{
    std::stable_sort(changes.begin(), changes.end(),
                     [](const auto& a, const auto& b) { return a.beats < b.beats; });
    stretches_.reserve(changes.size() + 1);
    stretches_.push_back({0.0, 0.0, kDefaultSecondsPerBeat});
    for (const TempoChange& change : changes) {
        if (change.microsecondsPerBeat == 0)
            continue;
        const double seconds = secondsForBeats(change.beats);
        if (stretches_.back().beats == change.beats)
            stretches_.pop_back();
        stretches_.push_back({change.beats, seconds, change.microsecondsPerBeat * 1e-6});
    }
}

const TempoMap::Stretch& TempoMap::stretchAt(double beats) const
{
    // The first tempo also applies to times before the start.
    const auto after =
        std::upper_bound(std::next(stretches_.begin()), stretches_.end(), beats,
                         [](double beat, const Stretch& s) { return beat < s.beats; });
    return *std::prev(after);
}

double TempoMap::secondsForBeats(double beats) const
{
    const Stretch& stretch = stretchAt(beats);
    return stretch.seconds + (beats - stretch.beats) * stretch.secondsPerBeat;
}

double TempoMap::secondsBetween(double from, double to) const
{
    const Stretch& stretch = stretchAt(from);
    return &stretch == &stretchAt(to) ? (to - from) * stretch.secondsPerBeat
                                      : secondsForBeats(to) - secondsForBeats(from);
}

double TempoMap::beatsAfter(double beats, double seconds) const
{
    const Stretch& stretch = stretchAt(beats);
    const double after = beats + seconds / stretch.secondsPerBeat;
    return &stretch == &stretchAt(after) ? after
                                         : beatsForSeconds(secondsForBeats(beats) + seconds);
}

double TempoMap::beatsForSeconds(double seconds) const
{
    const auto after =
        std::upper_bound(std::next(stretches_.begin()), stretches_.end(), seconds,
                         [](double second, const Stretch& s) { return second < s.seconds; });
    const Stretch& stretch = *std::prev(after);
    return stretch.beats + (seconds - stretch.seconds) / stretch.secondsPerBeat;
}

} // namespace velmora
