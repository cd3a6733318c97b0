#pragma once

#include "app/TuningMoment.h"

#include <QPointF>
#include <QSizeF>

#include <string>
#include <vector>

namespace velmora {

/// What the circle shows of a note.
struct CircleNote {
    unsigned key = 0;   ///< In the octave where the beats are counted.
    std::string name;   ///< As `spelling` writes it; the number of the degree in other scales.
    double cents = 0.0; ///< Above the first note.
    bool sounds = false;
    HeardInterval fifth; ///< To the next note; in other scales, from the first note to this one.
    HeardInterval third; ///< The major third above the note; unused in other scales.

    bool operator==(const CircleNote&) const = default;
};

/// The notes of a temperament around a circle: by fifths from C at the top if it repeats in every
/// octave of twelve keys, otherwise by the degrees of the scale from middle C.
struct Circle {
    bool isOfFifths = true;
    std::vector<CircleNote> notes;

    Circle() = default;

    /// The beats are those in the octave from C of that number, from 1 to 7; middle C begins the
    /// fourth.
    Circle(const TuningMoment& moment, int octave);

    bool operator==(const Circle&) const = default;
};

/// Where the parts of a circle lie in a view, in pixels.
class CircleGeometry {
public:
    CircleGeometry(QSizeF view, std::size_t notes);

    double noteRadius() const { return noteRadius_; }

    /// The middle of a note's disc, of the label of the interval to the next note, and of the label
    /// of its third, or of its only interval if there are more or fewer than twelve notes.
    /// Positions run clockwise from the top.
    QPointF note(std::size_t position) const
    {
        return at(static_cast<double>(position), ring_, ring_);
    }
    QPointF fifth(std::size_t position) const;
    QPointF third(std::size_t position) const;

    /// With too many notes there is no room for labels.
    bool hasLabels() const;

    /// How large the labels may be without covering each other.
    QSizeF labelRoom() const;

    /// The position of the note whose disc covers a point; empty if there is none.
    std::optional<std::size_t> noteAt(QPointF point) const;

    /// How far a point lies from the middle of the circle.
    double distance(QPointF point) const;

private:
    /// The place of a position on an ellipse with these radii.
    QPointF at(double position, double across, double up) const;

    std::size_t notes_;
    QPointF centre_;
    double greatest_, ring_, noteRadius_;
};

} // namespace velmora
