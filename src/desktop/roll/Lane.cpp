#include "desktop/roll/Lane.h"

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QPainter>

namespace velmora {

namespace {

/// The thickness of a lane in heights of its letters.
constexpr int kLaneThickness = 7;

} // namespace

Lane::Lane(const SequenceView& view, const QString& title, const QString& tip)
    : TimeStrip(view, Side::Below)
{
    setAccessibleName(title);
    setToolTip(tip);
}

void Lane::setEditor(SequenceEditor* editor)
{
    if (editor_ != nullptr) {
        document().disconnect(this);
        document().transport().disconnect(this);
    }
    editor_ = editor;
    if (editor_ != nullptr) {
        const auto repaint = qOverload<>(&Lane::update);
        connect(&document(), &SequenceDocument::changed, this, repaint);
        connect(&document().transport(), &Transport::moved, this, repaint);
        connect(&document().transport(), &Transport::frame, this, repaint);
    }
    update();
}

int Lane::preferredThickness() const
{
    return fontMetrics().height() * kLaneThickness;
}

void Lane::paintGround(QPainter& painter) const
{
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(QPointF(0.5, 0.5),
                     isAcross() ? QPointF(width(), 0.5) : QPointF(0.5, height()));
    painter.setWorldTransform(turn());
}

SequenceDocument& Lane::document() const
{
    return editor_->document();
}

} // namespace velmora
