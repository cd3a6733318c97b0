#include "notation/makeBars.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace velmora {

namespace {

/// The shortest bar, a thirty-second note. A signature that is nearer to the one before moves.
constexpr int kShortestBar = kScoreDivisions / 8;

int barPosition(double quarters)
{
    const double inPiece = std::min(quarters, Piece::kLongest); // signs may stand behind its end
    return kShortestBar * static_cast<int>(std::lround(inPiece * kScoreDivisions / kShortestBar));
}

int lengthOf(const Piece::TimeSignature& signature)
{
    return std::max(signature.beats * 4 * kScoreDivisions / signature.unit, kShortestBar);
}

} // namespace

std::vector<Score::Bar> makeBars(const Piece& piece, int end)
{
    std::vector<Score::Bar> bars;
    Piece::TimeSignature time;
    Piece::KeySignature key;
    auto nextTime = piece.timeSignatures.begin();
    auto nextKey = piece.keySignatures.begin();
    auto nextTempo = piece.tempos.begin();
    for (int start = 0; start < end || bars.empty();) {
        Score::Bar bar;
        bar.start = start;
        const auto oldTime = time;
        for (; nextTime != piece.timeSignatures.end() && barPosition(nextTime->start) <= start;
             ++nextTime)
            time = *nextTime;
        if (bars.empty() || lengthOf(time) != lengthOf(oldTime) || time.unit != oldTime.unit)
            bar.timeSignature = time;
        bar.length = lengthOf(time);
        if (nextTime != piece.timeSignatures.end())
            bar.length = std::min(bar.length, barPosition(nextTime->start) - start);
        const auto oldKey = key;
        // A key that changes within a bar holds from the next one.
        for (; nextKey != piece.keySignatures.end() && barPosition(nextKey->start) <= start;
             ++nextKey)
            key = *nextKey;
        if (bars.empty() || key.fifths != oldKey.fifths || key.isMinor != oldKey.isMinor)
            bar.keySignature = key;
        for (;
             nextTempo != piece.tempos.end() && barPosition(nextTempo->start) < start + bar.length;
             ++nextTempo)
            bar.tempos.push_back(
                {std::max(barPosition(nextTempo->start), start), nextTempo->quartersPerMinute});
        start += bar.length;
        bars.push_back(std::move(bar));
    }
    return bars;
}

} // namespace velmora
