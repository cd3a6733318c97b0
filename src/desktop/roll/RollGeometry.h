#pragma once

#include "sequencer/Sequence.h"
#include "sequencer/SequenceEditor.h"

#include <QRectF>

namespace velmora {

/// A rectangle in the piano roll, in pixels; x grows along the keys, y along the time.
struct RollQuad {
    double left;
    double right;
    double bottom;
    double top;
};

/// The size of what a piano roll shows, in pixels.
struct RollScale {
    int keyWidth;  ///< Of a key, as in the preference "KeyWidth".
    int keyHeight; ///< Of a step, as in the preference "KeyHeight".

    bool operator==(const RollScale&) const = default;
};

/// Returns the scale in the preferences, which new rolls have.
RollScale preferredScale();

/// The visible part of a piano roll. Lengths are in pixels, and coordinates for drawing start at
/// the lower left corner of the view: x runs along the keys from left to right, y runs upwards
/// along the time. If time runs across, the view shows all of it mirrored at the diagonal through
/// this corner, and only `inView`, `pointAt` and `towards` know.
struct RollGeometry {
    /// The width of a key and the height of a step.
    int keyWidth;
    int keyHeight;

    /// The scroll position: the point of the roll at the lower left corner of the view.
    double x;
    double y;

    /// The size of the view along the keys and along the time.
    double width;
    double height;

    bool isAcross = false; ///< True if time runs from left to right and keys upwards.

    static constexpr int kKeys = 128;

    /// The size of the whole roll for a sequence of `steps` steps.
    double rollWidth() const { return static_cast<double>(keyWidth) * kKeys; }
    double rollHeight(double steps) const { return keyHeight * steps; }

    /// The visible columns, from the first to one past the last.
    int firstKey() const;
    int endKey() const;
    RollQuad column(int key) const;

    /// The steps whose grid lines may be visible, from the first to one past the last.
    int firstStep() const;
    int endStep() const;

    /// The left edge of a column and the lower edge of a step. Both are whole numbers if the
    /// argument and the scroll position are.
    double xOf(double key) const { return key * keyWidth - x; }
    double yOf(double step) const { return step * keyHeight - y; }

    /// The visible time, in steps.
    double bottomStep() const { return y / keyHeight; }
    double topStep() const { return (y + height) / keyHeight; }

    /// The rectangle of a note, from its onset at the bottom to its end at the top. Louder notes
    /// are wider.
    RollQuad note(const Note& note) const;

    /// The rectangle of a note that fills its column and leaves a gap to the next note of its key.
    RollQuad block(const Note& note) const;

    /// Where the view shows a rectangle, relative to its upper left corner.
    QRectF inView(const RollQuad& quad) const;

    /// The key, 0…127, and the step at a mouse position, which is relative to the upper left
    /// corner of the view.
    RollPoint pointAt(double mouseX, double mouseY) const;

    /// The way along the keys and along the time that leads in a direction of the screen.
    QPoint towards(QPoint direction) const;

    bool operator==(const RollGeometry&) const = default;
};

} // namespace velmora
