#pragma once

#include "desktop/roll/Lane.h"
#include "sequencer/Controllers.h"

#include <QPointF>

#include <optional>

namespace velmora {

/// Shows how a controller of the chosen channel moves. A click draws an event, a drag moves it, and
/// a click with the right button deletes it.
class ControllerLane : public Lane {
    Q_OBJECT

public:
    /// `number` is that of a `ControllerEvent`; `title` names it.
    ControllerLane(const SequenceView& view, int number, const QString& title);

    void setEditor(SequenceEditor* editor) override;

private:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    bool isShown(const ControllerEvent& event) const;
    double xOf(int value) const;
    ControllerEvent eventAt(QPointF point) const;

    /// Returns the controllers without the event that is dragged, and with where it is now.
    Controllers edited() const;

    const int number_;
    std::optional<ControllerEvent> grabbed_; ///< The event that the drag moves, as it was.
    std::optional<ControllerEvent> dragged_; ///< Where it is now; nothing if nothing is dragged.
};

} // namespace velmora
