#pragma once

#include <QTransform>
#include <QWidget>

namespace velmora {

class SequenceView;

/// A strip along the time of the piano roll, which it shares with the view of the roll. It stands
/// beside a view in which time runs upwards, and lies above or below one in which time runs across.
/// It is always laid out as if it stood: y runs downwards against the time, x runs across it.
class TimeStrip : public QWidget {
    Q_OBJECT

public:
    QSize sizeHint() const final;

protected:
    /// Where a strip lies while time runs across.
    enum class Side { Above, Below };

    /// The strip must be as long as the view, which must outlive it.
    TimeStrip(const SequenceView& view, Side side);

    const SequenceView& view() const { return view_; }

    /// True if the strip lies.
    bool isAcross() const;

    /// The size of the strip along the time and across it, in pixels.
    int length() const { return isAcross() ? width() : height(); }
    int thickness() const { return isAcross() ? height() : width(); }

    /// The thickness that the strip has.
    virtual int preferredThickness() const = 0;

    /// Turns what is painted as if the strip stood to where it is seen.
    QTransform turn() const;

    /// Where a position of the mouse is on the standing strip.
    QPointF standing(QPointF point) const;

    /// The y of a step on the standing strip, and the step, at least 0, at such a distance.
    double yOf(double step) const;
    double stepAt(double y) const;

private:
    void fit();

    const SequenceView& view_;
    const Side side_;
};

} // namespace velmora
