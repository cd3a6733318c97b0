#include "desktop/roll/Lane.h"

#include "desktop/roll/SequenceView.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <algorithm>

namespace velmora {

namespace {

/// The width of a lane in heights of its letters.
constexpr int kLaneWidth = 7;

} // namespace

Lane::Lane(const SequenceView& view, const QString& title, const QString& tip) : view_(view)
{
    setAccessibleName(title);
    setToolTip(tip);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
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

QSize Lane::sizeHint() const
{
    return {fontMetrics().height() * kLaneWidth, 0};
}

SequenceDocument& Lane::document() const
{
    return editor_->document();
}

double Lane::yOf(double step) const
{
    return height() - view_.rollGeometry().yOf(step);
}

double Lane::stepAt(double y) const
{
    return std::max(0.0, view_.rollGeometry().pointAt(0, y).step);
}

} // namespace velmora
