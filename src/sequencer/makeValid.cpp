#include "sequencer/makeValid.h"

#include "sound/keys.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr std::uint32_t kLastChannel = 255;

/// The furthest step: beyond any music, and small enough that no sum of steps overflows.
constexpr double kFar = 1e12;

} // namespace

bool makeValid(Note& note)
{
    for (double* start : {&note.start, &note.oldStart})
        *start = std::clamp(*start, 0.0, kFar);
    for (double* length : {&note.length, &note.oldLength})
        *length = std::clamp(*length, 0.0, kFar);
    note.velocity = std::clamp(note.velocity, 0.0F, 1.0F);
    const double all = note.start + note.oldStart + note.length + note.oldLength + note.velocity;
    return !std::isnan(all) && note.channel <= kLastChannel && note.key < kKeys &&
           note.oldKey < kKeys;
}

} // namespace velmora
