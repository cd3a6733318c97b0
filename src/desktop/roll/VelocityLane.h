#pragma once

#include "desktop/roll/Lane.h"
#include "sequencer/Sequence.h"

#include <QPointF>

#include <map>

namespace velmora {

/// Shows the velocity of each note as a bar at its onset. A drag over the bars sets them, with
/// Shift along a straight line. If notes are selected, only they change.
class VelocityLane : public Lane {
    Q_OBJECT

public:
    explicit VelocityLane(const SequenceView& view);

    void setEditor(SequenceEditor* editor) override;

private:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    /// Gives the notes between two points the velocities of the line from one to the other.
    void drawLine(QPointF from, QPointF to);

    /// Calls `use` for each note whose onset is between two steps.
    template <class Use> void visit(double from, double to, Use use) const;

    double xOf(double velocity) const;
    double velocityAt(double x) const;

    QPointF press_, last_; ///< Where the drag began, and where it is.
    bool isDrawing_ = false;
    std::map<std::uint64_t, double> drawn_; ///< Velocities that the drag has set, by note.
};

} // namespace velmora
