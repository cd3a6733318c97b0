#pragma once

#include "sequencer/Sequence.h"
#include "sequencer/SequenceEditor.h"

namespace velmora {

/// An area of the piano roll in pixels, y growing upwards.
struct RollQuad {
    double left;
    double right;
    double bottom;
    double top;
};

/// The part of the piano roll that a view shows: keys run from left to right, time runs upwards.
/// Lengths are in pixels. What is drawn is measured from the view's lower left corner.
struct RollGeometry {
    /// The width of a key and the height of a step.
    int keyWidth;
    int keyHeight;

    /// The scroll position: the roll's lower left corner that shows.
    double x;
    double y;

    /// The size of the view.
    double width;
    double height;

    static constexpr int kKeys = 128;

    /// Of the whole roll, for a sequence of so many steps.
    double rollWidth() const { return static_cast<double>(keyWidth) * kKeys; }
    double rollHeight(double steps) const { return keyHeight * steps; }

    /// The columns that show: from the first to the one before the last.
    int firstKey() const;
    int endKey() const;
    RollQuad column(int key) const;

    /// The steps whose grid lines may show: from the first to the one before the last.
    int firstStep() const;
    int endStep() const;

    /// The edge of a column or a step, in whole pixels where the roll is scrolled by such.
    double xOf(double key) const { return key * keyWidth - x; }
    double yOf(double step) const { return step * keyHeight - y; }

    /// The time that shows, in steps.
    double bottomStep() const { return y / keyHeight; }
    double topStep() const { return (y + height) / keyHeight; }

    /// The louder the wider. The onset lies at the bottom, the end at the top.
    RollQuad note(const Note& note) const;

    /// The key, from 0 to 127, and the step that are drawn in the pixel at a mouse position, which
    /// is counted from the view's upper left corner.
    RollPoint pointAt(double mouseX, double mouseY) const;

    bool operator==(const RollGeometry&) const = default;
};

} // namespace velmora
