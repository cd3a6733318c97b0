#include "import/sf2Bank.h"
#include "import/sf2Zones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

namespace velmora {

namespace sf2 {

namespace {

/// Sides whose tuning differs at most so many cents, which makes them sound wider, are played as
/// one sound, in the middle between them.
/// See docs/decisions.md, 174.
constexpr double kAlike = 10.0;

/// Banks list the sides of a sound next to each other, or at most as far apart as they have layers.
constexpr std::size_t kFarthest = 16;

auto keysOf(const Zone& zone)
{
    return std::tuple(zone.lowestKey, zone.highestKey, zone.softest, zone.loudest);
}

bool areLinked(const Bank& bank, const Zone& left, const Zone& right)
{
    constexpr unsigned kRight = 2;
    constexpr unsigned kLeft = 4;
    const sfSample& one = bank.samples[left.sample];
    const sfSample& other = bank.samples[right.sample];
    return (one.sfSampleType & kLeft) != 0 && (other.sfSampleType & kRight) != 0 &&
           (one.wSampleLink == right.sample || other.wSampleLink == left.sample);
}

bool arePanned(const Zone& left, const Zone& right)
{
    constexpr int kSide = 500;
    return left.pan == -kSide && right.pan == kSide;
}

bool areSides(const Bank& bank, const Zone& left, const Zone& right)
{
    const auto traits = [](const Zone& zone) {
        return std::tuple(zone.rate, zone.mode, zone.root, zone.centsPerKey, zone.pitchOf);
    };
    return keysOf(left) == keysOf(right) && traits(left) == traits(right) &&
           std::abs(left.cents - right.cents) <= kAlike &&
           (areLinked(bank, left, right) || arePanned(left, right));
}

Sides joined(const Zone& left, const Zone& right)
{
    Sides sides{left, right};
    sides.left.cents = sides.right->cents = std::midpoint(left.cents, right.cents);
    sides.left.decibels = std::midpoint(left.decibels, right.decibels);
    return sides;
}

} // namespace

const Zone& Sides::leader() const
{
    const auto length = [](const Zone& zone) { return zone.loopEnd - zone.loopBegin; };
    return right && length(*right) > length(left) ? *right : left;
}

std::vector<Sides> joinSides(const Bank& bank, const std::vector<Zone>& zones)
{
    std::vector<std::size_t> order(zones.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return keysOf(zones[i]); });
    constexpr std::size_t kNone = SIZE_MAX;
    std::vector<std::size_t> partner(zones.size(), kNone); // of a left side
    std::vector<bool> isRight(zones.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t j = i + 1; j < std::min(order.size(), i + kFarthest); ++j) {
            for (const auto& [left, right] :
                 {std::pair(order[i], order[j]), std::pair(order[j], order[i])}) {
                if (partner[left] == kNone && partner[right] == kNone && !isRight[left] &&
                    !isRight[right] && areSides(bank, zones[left], zones[right])) {
                    partner[left] = right;
                    isRight[right] = true;
                }
            }
        }
    }
    std::vector<Sides> result;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        if (!isRight[i])
            result.push_back(partner[i] == kNone ? Sides{zones[i], {}}
                                                 : joined(zones[i], zones[partner[i]]));
    }
    return result;
}

std::vector<Layer> layersOf(const std::vector<Sides>& zones, int key)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < zones.size(); ++i)
        if (zones[i].left.lowestKey <= key && key <= zones[i].left.highestKey)
            order.push_back(i);
    std::ranges::stable_sort(order, std::ranges::greater(), [&](std::size_t i) {
        return std::pair(zones[i].left.decibels, zones[i].right.has_value());
    });
    constexpr int kVelocities = 128;
    std::array<std::optional<std::size_t>, kVelocities> byVelocity;
    for (const std::size_t i : order)
        for (int velocity = zones[i].left.softest; velocity <= zones[i].left.loudest; ++velocity)
            if (auto& place = byVelocity[static_cast<std::size_t>(velocity)]; !place)
                place = i;
    std::vector<Layer> layers;
    for (int velocity = 0; velocity < kVelocities; ++velocity) {
        const auto zone = byVelocity[static_cast<std::size_t>(velocity)];
        if (!zone)
            continue;
        if (!layers.empty() && layers.back().zone == *zone && layers.back().loudest == velocity - 1)
            layers.back().loudest = velocity;
        else
            layers.push_back({*zone, velocity, velocity});
    }
    return layers;
}

} // namespace sf2

} // namespace velmora
