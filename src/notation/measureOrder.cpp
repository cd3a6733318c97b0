#include "notation/measureOrder.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace velmora {

namespace {

bool isPlayedAt(int pass, std::uint32_t passes)
{
    return passes == 0 || (passes >> pass & 1U) != 0;
}

/// Returns the last pass of a group of endings to which a measure belongs.
int lastPass(std::span<const MeasureSigns> measures, std::size_t index)
{
    std::uint32_t passes = 0;
    for (; index < measures.size() && measures[index].passes != 0; ++index)
        passes |= measures[index].passes;
    return static_cast<int>(std::bit_width(passes)) - 1;
}

/// Returns how often what ends with a measure's repeat sign is played.
int timesOf(std::span<const MeasureSigns> measures, std::size_t index)
{
    const MeasureSigns& signs = measures[index];
    if (signs.times == 1 || signs.passes == 0)
        return signs.times;
    // The sign of an ending leads to the next one, whatever the number of times says. The first
    // ending may be the only one that is written.
    const auto next = static_cast<int>(std::bit_width(signs.passes));
    return isPlayedAt(1, signs.passes) ? next : std::min(next, lastPass(measures, index));
}

std::size_t findSign(std::span<const MeasureSigns> measures, bool MeasureSigns::*sign,
                     std::size_t otherwise)
{
    const auto found = std::ranges::find(measures, true, sign);
    return found == measures.end()
               ? otherwise
               : static_cast<std::size_t>(std::distance(measures.begin(), found));
}

} // namespace

std::vector<PlayedMeasure> measureOrder(std::span<const MeasureSigns> measures)
{
    std::vector<PlayedMeasure> order;
    std::size_t start = 0; // of the repetition
    int pass = 1;
    bool hasReturned = false;
    for (std::size_t i = 0; i < measures.size();) {
        const MeasureSigns& signs = measures[i];
        const bool isAfterEnding = i > 0 && measures[i - 1].passes != 0 && signs.passes == 0;
        if (i != start && (signs.beginsRepeat || isAfterEnding)) {
            start = i;
            pass = 1;
        }
        if (!isPlayedAt(hasReturned ? lastPass(measures, i) : pass, signs.passes)) {
            ++i;
            continue;
        }
        order.push_back({i, pass});
        if (!hasReturned && pass < timesOf(measures, i)) {
            ++pass;
            i = start;
        } else if (!hasReturned && (signs.leadsToStart || signs.leadsToSegno)) {
            hasReturned = true;
            i = signs.leadsToStart ? 0 : findSign(measures, &MeasureSigns::isSegno, 0);
        } else if (hasReturned && signs.isFine) {
            break;
        } else if (hasReturned && signs.leadsToCoda) {
            i = std::max(i + 1, findSign(measures, &MeasureSigns::isCoda, i + 1));
        } else {
            if (signs.times > 1 && signs.passes == 0) {
                start = i + 1;
                pass = 1;
            }
            ++i;
        }
    }
    return order;
}

} // namespace velmora
