#pragma once

#include "desktop/roll/RollPicture.h"

#include <QOpenGLWidget>
#include <QTimer>

namespace velmora {

class SequenceDocument;
class SequenceEditor;

/// The piano roll: draws the visible part of a document and forwards mouse and keys to its editor.
class SequenceView : public QOpenGLWidget {
    Q_OBJECT

public:
    explicit SequenceView(QWidget* parent = nullptr);

    /// Sets the document to show and the editor for it; two null pointers leave the view empty.
    /// Both must be replaced before they are destroyed.
    void setDocument(const SequenceDocument* document, SequenceEditor* editor);
    const SequenceDocument* document() const { return document_; }
    SequenceEditor* editor() const { return editor_; }

    void setScale(RollScale scale);

    /// Lets time run from left to right and keys upwards, or the other way round.
    void setTimeAcross(bool isAcross);

    /// Moves a point of the roll, in pixels along the keys and the time, to the lower left corner
    /// of the view.
    void scrollTo(QPoint point);

    /// The visible part.
    RollGeometry rollGeometry() const;

    /// Schedules a repaint after the notes may have changed.
    void redraw();

    /// Makes the note at a place of the view louder, or softer if `notches` is negative, and with
    /// it every selected note if it is one of them.
    void changeVelocityAt(const QPointF& place, int notches);

    /// Forwards a key that was pressed or released here or in another window. Ignores presses
    /// during a drag, because they could change what is being dragged.
    void handleKey(const QKeyEvent& event);

signals:
    /// Another document is shown.
    void documentChanged();

    /// Time has begun to run in another direction.
    void turned();

    /// The mouse is being dragged beyond the edge of the view; the roll should scroll by `pixels`
    /// along the keys and the time.
    void draggedBeyondEdge(QPoint pixels);

protected:
    bool event(QEvent* event) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { handleKey(*event); }
    void keyReleaseEvent(QKeyEvent* event) override { handleKey(*event); }

private:
    void updateIndex();
    void drawNames(const RollColors& colors);

    /// The place of a note's name, of this size, in its block; empty if there is no room for it.
    QRectF nameIn(const RollQuad& block, QSizeF name) const;

    void drawBand(const RollColors& colors);
    RollPoint rollPoint(const QPointF& point) const;
    RollHit hitAt(const QPointF& point);

    /// Continues the current drag, and scrolls the roll while the mouse is beyond the edge.
    void drag(const QPointF& point, Qt::KeyboardModifiers modifiers);
    void autoScroll();

    /// Shows by the shape of the cursor what a press would do.
    void updateCursor(Qt::KeyboardModifiers modifiers);

    const SequenceDocument* document_ = nullptr;
    SequenceEditor* editor_ = nullptr;
    RollScale scale_ = preferredScale();
    bool isAcross_ = false; ///< True if time runs from left to right.
    QPoint offset_;
    Qt::MouseButton button_ = Qt::NoButton; ///< The button of the current gesture.
    QPointF dragPosition_;
    Qt::KeyboardModifiers dragModifiers_;
    QTimer autoScrollTimer_;
    RollIndex index_;
    bool isIndexed_ = false; ///< True if the index is up to date.
    RollPicture picture_;
};

} // namespace velmora
