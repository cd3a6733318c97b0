#include "sequencer/PracticeResult.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace velmora {

namespace {

std::size_t delayClass(double delay)
{
    constexpr auto kMiddleClass = PracticeSummary::kDelayClasses / 2;
    constexpr auto kMiddle = static_cast<double>(kMiddleClass);
    const double place = std::round(delay / PracticeSummary::kDelayClass) + kMiddle;
    return static_cast<std::size_t>(std::clamp(place, 0.0, 2 * kMiddle));
}

/// Returns 0 if there are none.
double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

} // namespace

PracticeSummary summarize(const PracticeResult& result, const MusicalTime& time)
{
    PracticeSummary summary{.wrong = static_cast<int>(result.wrong.size()),
                            .missed = static_cast<int>(result.missed.size()),
                            .passes = result.passes,
                            .cleanPasses = result.cleanPasses,
                            .speed = result.speed};
    std::map<int, PracticeBar> bars;
    const auto barAt = [&](double step) -> PracticeBar& {
        const int number = time.barAt(step).number;
        PracticeBar& bar = bars[number];
        bar.number = number;
        return bar;
    };
    std::vector<double> delays;
    for (const PracticeStroke& stroke : result.strokes) {
        ++summary.right;
        summary.early += stroke.delay < -PracticeSummary::kOnTime ? 1 : 0;
        summary.late += stroke.delay > PracticeSummary::kOnTime ? 1 : 0;
        ++summary.delays[delayClass(stroke.delay)];
        delays.push_back(stroke.delay);
        ++barAt(stroke.step).right;
    }
    summary.medianDelay = median(delays);
    for (const PracticeMistake& wrong : result.wrong)
        ++barAt(wrong.step).wrong;
    for (const PracticeMistake& missed : result.missed)
        ++barAt(missed.step).missed;
    for (const auto& [number, bar] : bars)
        summary.bars.push_back(bar);
    return summary;
}

} // namespace velmora
