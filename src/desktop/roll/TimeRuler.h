#pragma once

#include <QWidget>

namespace velmora {

class SequenceDocument;
class SequenceEditor;
class SequenceView;

/// A ruler beside the piano roll with the numbers of the bars. The play position and the ends of
/// the selected interval are handles that can be dragged; a press elsewhere moves the position, and
/// a drag from there selects an interval.
class TimeRuler : public QWidget {
    Q_OBJECT

public:
    /// The ruler must be as high as the view, which must outlive it.
    explicit TimeRuler(const SequenceView& view, QWidget* parent = nullptr);

    /// Sets the document to show and the editor for it, as `SequenceView::setDocument` does.
    void setDocument(const SequenceDocument* document, SequenceEditor* editor);

    QSize sizeHint() const override;

private:
    enum class Handle { None, Position, Start, End };

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    void paintBars(QPainter& painter) const;
    void paintHandles(QPainter& painter) const;

    /// The distance of a step from the upper edge, and the step at such a distance.
    double yOf(double step) const;
    double stepAt(double y) const;
    Handle handleAt(double y) const;

    const SequenceView& view_;
    const SequenceDocument* document_ = nullptr;
    SequenceEditor* editor_ = nullptr;
    Handle dragged_ = Handle::None;
    double fixed_ = 0.0; ///< The other end of the interval that is being dragged, in steps.
};

} // namespace velmora
