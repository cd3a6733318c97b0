#pragma once

#include "desktop/roll/TimeStrip.h"

namespace velmora {

class SequenceDocument;
class SequenceEditor;

/// A ruler along the piano roll with the numbers of the bars, above the roll while time runs
/// across. The play position and the ends of the selected interval are handles that can be dragged;
/// a press elsewhere moves the position, and a drag from there selects an interval.
class TimeRuler : public TimeStrip {
    Q_OBJECT

public:
    /// The ruler must be as long as the view, which must outlive it.
    explicit TimeRuler(const SequenceView& view);

    /// Sets the document to show and the editor for it, as `SequenceView::setDocument` does.
    void setDocument(const SequenceDocument* document, SequenceEditor* editor);

private:
    enum class Handle { None, Position, Start, End };

    int preferredThickness() const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    void paintBars(QPainter& painter) const;
    void paintHandles(QPainter& painter) const;

    /// Writes the number of a bar after its line, and returns the y at which the text ends.
    double paintNumber(QPainter& painter, int number, double y) const;

    Handle handleAt(double y) const;

    const SequenceDocument* document_ = nullptr;
    SequenceEditor* editor_ = nullptr;
    Handle dragged_ = Handle::None;
    double fixed_ = 0.0; ///< The other end of the interval that is being dragged, in steps.
};

} // namespace velmora
