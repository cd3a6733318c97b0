#pragma once

#include <QWidget>

namespace velmora {

class SequenceDocument;
class SequenceEditor;
class SequenceView;

/// A strip beside the piano roll that shows or edits one thing along the time of a piece. It is as
/// high as the view of the roll, and its time is the view's.
class Lane : public QWidget {
    Q_OBJECT

public:
    /// The view must outlive the lane. `title` names the lane for screen readers; `tip` says what
    /// can be done in it.
    Lane(const SequenceView& view, const QString& title, const QString& tip);

    /// Sets the editor of the piece to show, or null. It must be replaced before it is destroyed.
    /// The lane is repainted whenever the piece changes or its position is moved.
    virtual void setEditor(SequenceEditor* editor);

    QSize sizeHint() const override;

protected:
    const SequenceView& view() const { return view_; }
    SequenceEditor* editor() const { return editor_; }

    /// The piece; there must be an editor.
    SequenceDocument& document() const;

    /// The distance of a step from the upper edge, and the step, at least 0, at such a distance.
    double yOf(double step) const;
    double stepAt(double y) const;

private:
    const SequenceView& view_;
    SequenceEditor* editor_ = nullptr;
};

} // namespace velmora
