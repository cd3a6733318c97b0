#pragma once

#include "desktop/roll/TimeStrip.h"

namespace velmora {

class SequenceDocument;
class SequenceEditor;

/// A strip along the piano roll that shows or edits one thing along the time of a piece. While time
/// runs across, it is below the roll.
class Lane : public TimeStrip {
    Q_OBJECT

public:
    /// The view must outlive the lane. `title` names the lane for screen readers; `tip` says what
    /// can be done in it.
    Lane(const SequenceView& view, const QString& title, const QString& tip);

    /// Sets the editor of the piece to show, or null. It must be replaced before it is destroyed.
    /// The lane is repainted whenever the piece changes or its position is moved.
    virtual void setEditor(SequenceEditor* editor);

protected:
    int preferredThickness() const override;

    /// Paints the ground and its edge at the roll, and lets the painter paint as if the lane stood.
    void paintGround(QPainter& painter) const;

    SequenceEditor* editor() const { return editor_; }

    /// The piece; there must be an editor.
    SequenceDocument& document() const;

private:
    SequenceEditor* editor_ = nullptr;
};

} // namespace velmora
