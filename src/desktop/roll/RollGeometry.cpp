#include "desktop/roll/RollGeometry.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Half the width of a note of velocity 0.
constexpr double kMinHalfWidth = 2.0;

/// Subtracted from half a column before `kMinHalfWidth` is added, so that the loudest note leaves
/// two pixels of its column free on each side.
constexpr double kColumnMargin = 4.0;

} // namespace

int RollGeometry::firstKey() const
{
    return std::clamp(static_cast<int>(x / keyWidth), 0, kKeys);
}

int RollGeometry::endKey() const
{
    return std::min(firstKey() + static_cast<int>(std::ceil(width / keyWidth)) + 1, kKeys);
}

RollQuad RollGeometry::column(int key) const
{
    return {xOf(key), xOf(key + 1), 0.0, height};
}

int RollGeometry::firstStep() const
{
    return static_cast<int>(bottomStep());
}

int RollGeometry::endStep() const
{
    return firstStep() + static_cast<int>(std::ceil(height / keyHeight)) + 1;
}

RollQuad RollGeometry::note(const Note& note) const
{
    const double half =
        note.velocity * std::max(0.0, keyWidth * 0.5 - kColumnMargin) + kMinHalfWidth;
    const double centre = xOf(note.key + 0.5);
    return {centre - half, centre + half - 1.0, yOf(note.start), yOf(note.start + note.length)};
}

RollPoint RollGeometry::pointAt(double mouseX, double mouseY) const
{
    // A mouse position stands for the lower left corner of its pixel.
    const double key = std::trunc((mouseX + x) / keyWidth);
    return {std::clamp(key, 0.0, kKeys - 1.0), (height - 1.0 - mouseY + y) / keyHeight};
}

} // namespace velmora
