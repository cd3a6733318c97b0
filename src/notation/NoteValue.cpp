#include "notation/NoteValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace velmora {

namespace {

struct Division {
    int unit;       ///< In divisions.
    double penalty; ///< What it costs, as the squared deviation of one note in units of `kSpread`.
};

/// From the coarsest division on.
constexpr Division kBeatDivisions[] = {{24, 0.0}, {12, 0.5}, {8, 1.0},
                                       {6, 1.0},  {4, 2.0},  {3, 2.0}};

/// How far, in quarter notes, played notes usually lie from where they are written.
constexpr double kSpread = 0.02;

/// The weight of an end, which is often early.
constexpr double kEndWeight = 0.02;

/// Written lengths without a triplet, the longest first, and those within one.
constexpr std::array<int, 9> kPlainLengths = {96, 72, 48, 36, 24, 18, 12, 6, 3};
constexpr std::array<int, 4> kTripletLengths = {16, 12, 8, 4};

NoteValue valueOf(int length, bool isTriplet)
{
    constexpr int kWhole = 4 * kScoreDivisions;
    const int plain = isTriplet ? length * 3 / 2 : length;
    const bool isDotted = kWhole % plain != 0;
    return {kWhole / (isDotted ? plain * 2 / 3 : plain), isDotted, isTriplet};
}

int longest(std::span<const int> lengths, int limit)
{
    return *std::ranges::find_if(lengths, [limit](int length) { return length <= limit; });
}

/// Returns how much of a stretch without triplets is written as one value.
int plainLength(int position, int length, const BeatGrid& grid)
{
    const int within = position % kScoreDivisions;
    if (within != 0) {
        constexpr int kEighth = kScoreDivisions / 2;
        const bool isSyncopated = within == kEighth && length == kScoreDivisions &&
                                  !grid.hasTriplets(position + length - 1);
        return isSyncopated ? length : std::min(length, kScoreDivisions - within);
    }
    // Quarter notes with triplets are written by themselves unless they are filled.
    int whole = 0;
    while (whole + kScoreDivisions <= length)
        whole += kScoreDivisions;
    const bool endsInTriplet = whole < length && grid.hasTriplets(position + whole);
    return endsInTriplet ? whole : length;
}

} // namespace

int NoteValue::length() const
{
    int length = 4 * kScoreDivisions / value;
    if (isDotted)
        length += length / 2;
    return isTriplet ? length * 2 / 3 : length;
}

BeatGrid::BeatGrid(std::span<const double> starts, std::span<const double> ends)
{
    constexpr std::size_t kCount = std::size(kBeatDivisions);
    std::vector<std::array<double, kCount>> costs;
    const auto add = [&costs](double moment, double weight) {
        const double quarter = std::floor(moment);
        const auto index = static_cast<std::size_t>(quarter);
        if (index >= costs.size()) {
            std::array<double, kCount> none{};
            for (std::size_t i = 0; i < kCount; ++i)
                none[i] = kBeatDivisions[i].penalty;
            costs.resize(index + 1, none);
        }
        for (std::size_t i = 0; i < kCount; ++i) {
            const double units = (moment - quarter) * kScoreDivisions / kBeatDivisions[i].unit;
            const double deviation =
                (units - std::round(units)) * kBeatDivisions[i].unit / kScoreDivisions / kSpread;
            costs[index][i] += weight * deviation * deviation;
        }
    };
    for (const double start : starts)
        add(start, 1.0);
    for (const double end : ends)
        add(end, kEndWeight);
    for (const auto& cost : costs)
        units_.push_back(kBeatDivisions[std::ranges::min_element(cost) - cost.begin()].unit);
}

void BeatGrid::avoidTriplets(int position)
{
    if (hasTriplets(position))
        units_[static_cast<std::size_t>(position / kScoreDivisions)] = kScoreDivisions / 8;
}

int BeatGrid::position(double quarters) const
{
    const int quarter = kScoreDivisions * static_cast<int>(std::floor(quarters));
    const int unit = this->unit(quarter);
    return quarter +
           unit * static_cast<int>(std::lround((quarters * kScoreDivisions - quarter) / unit));
}

int BeatGrid::unit(int position) const
{
    const auto quarter = static_cast<std::size_t>(position / kScoreDivisions);
    return quarter < units_.size() ? units_[quarter] : kScoreDivisions;
}

std::vector<NoteValue> noteValues(int position, int length, const BeatGrid& grid)
{
    std::vector<NoteValue> values;
    while (length > 0) {
        const int toQuarter = kScoreDivisions - position % kScoreDivisions;
        const bool fillsQuarter = toQuarter == kScoreDivisions && length >= kScoreDivisions;
        const bool isTriplet = grid.hasTriplets(position) && !fillsQuarter;
        const int written = isTriplet ? longest(kTripletLengths, std::min(length, toQuarter))
                                      : longest(kPlainLengths, plainLength(position, length, grid));
        values.push_back(valueOf(written, isTriplet));
        position += written;
        length -= written;
    }
    return values;
}

} // namespace velmora
