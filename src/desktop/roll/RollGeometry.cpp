#include "desktop/roll/RollGeometry.h"

#include "preferences/Preferences.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Half the width of a note of velocity 0.
constexpr double kMinHalfWidth = 2.0;

/// Subtracted from half a column before `kMinHalfWidth` is added, so that the loudest note leaves
/// two pixels of its column free on each side.
constexpr double kColumnMargin = 4.0;

/// In a column of this many pixels, notes leave room beside them.
constexpr int kNarrowColumn = 8;

/// The gap after a note, and the height of the shortest one, in pixels.
constexpr double kNoteGap = 1.0;
constexpr double kLowestNote = 2.0;

} // namespace

RollScale preferredScale()
{
    return {getPrefInt("KeyWidth"), getPrefInt("KeyHeight")};
}

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

RollQuad RollGeometry::block(const Note& note) const
{
    const double left = xOf(note.key), bottom = yOf(note.start);
    const double margin = keyWidth < kNarrowColumn ? 0.0 : 1.0;
    const double top = yOf(note.start + note.length) - kNoteGap;
    return {left + 1 + margin, left + keyWidth - margin, bottom,
            std::max(top, bottom + kLowestNote)};
}

QRectF RollGeometry::inView(const RollQuad& quad) const
{
    if (isAcross)
        return {QPointF(quad.bottom, width - quad.right), QPointF(quad.top, width - quad.left)};
    return {QPointF(quad.left, height - quad.top), QPointF(quad.right, height - quad.bottom)};
}

RollPoint RollGeometry::pointAt(double mouseX, double mouseY) const
{
    // A mouse position stands for the lower left corner of its pixel.
    const double right = isAcross ? width - 1.0 - mouseY : mouseX;
    const double up = isAcross ? mouseX : height - 1.0 - mouseY;
    const double key = std::trunc((right + x) / keyWidth);
    return {std::clamp(key, 0.0, kKeys - 1.0), (up + y) / keyHeight};
}

QPoint RollGeometry::towards(QPoint direction) const
{
    const QPoint upright(direction.x(), -direction.y());
    return isAcross ? upright.transposed() : upright;
}

} // namespace velmora
