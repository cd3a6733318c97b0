#pragma once

#include "desktop/roll/RollPicture.h"

#include <QOpenGLWidget>
#include <QTimer>

namespace velmora {

class SequenceDocument;
class SequenceEditor;

/// The piano roll of a document: draws the part of it that shows, and hands mouse and keys on to
/// its editor.
class SequenceView : public QOpenGLWidget {
    Q_OBJECT

public:
    explicit SequenceView(QWidget* parent = nullptr);

    /// Shows a document and edits it, both of which must be taken away before they end: with null
    /// the view is empty.
    void setDocument(const SequenceDocument* document, SequenceEditor* editor);

    /// Puts the roll's point at the lower left corner, in pixels.
    void scrollToPoint(QPoint point);

    /// The part that shows, as the preferences scale it.
    RollGeometry rollGeometry() const;

    /// Draws again soon.
    void redraw();

    /// Hands on a key that was pressed or released, here or in another window. Presses do not count
    /// while the mouse drags: they would change what it is dragging.
    void handleKey(const QKeyEvent& event);

signals:
    /// A drag goes on beyond the edge, so many pixels to the right and up: what lies there is to
    /// be shown.
    void pulled(QPoint pixels);

protected:
    bool event(QEvent* event) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { handleKey(*event); }
    void keyReleaseEvent(QKeyEvent* event) override { handleKey(*event); }

private:
    void gather();
    RollPoint localPoint(const QPointF& point) const;
    RollHit hitAt(const QPointF& point);

    /// Goes on with the drag under way, and shows more of the roll while it is beyond the edge.
    void drag(const QPointF& point);
    void pull();

    /// Shows what a press would do where the mouse is.
    void showCursor(Qt::KeyboardModifiers modifiers);

    const SequenceDocument* document_ = nullptr;
    SequenceEditor* editor_ = nullptr;
    QPoint offset_;
    Qt::MouseButton button_ = Qt::NoButton; ///< That of the gesture under way.
    QPointF dragged_;                       ///< Where its drag is.
    QTimer pulling_;
    RollIndex index_;
    bool isIndexed_ = false; ///< The index knows the notes as they are.
    RollPicture picture_;
};

} // namespace velmora
