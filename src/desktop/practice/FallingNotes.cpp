#include "desktop/practice/FallingNotes.h"

#include "desktop/keyboard/KeyboardView.h"
#include "desktop/roll/RollColors.h"
#include "desktop/widgets/motion.h"
#include "sequencer/SequenceDocument.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

constexpr int kFallingHeight = 140;
constexpr double kLeastHeight = 3.0; ///< Of a note, in pixels.
constexpr double kCornerRadius = 3.0;
constexpr double kEdgeWidth = 5.0; ///< Of a note whose key the keyboard does not have.

/// The steps that are in sight from a position: two bars.
double stepsInSight(const MusicalTime& time, double position)
{
    return 2 * time.barAt(position).length;
}

} // namespace

FallingNotes::FallingNotes(const KeyboardView& keyboard) : keyboard_(keyboard)
{
    setAccessibleName(QCoreApplication::translate("velmora::FallingNotes", "Falling notes"));
    setMinimumHeight(kFallingHeight / 2);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::MinimumExpanding);
}

QSize FallingNotes::sizeHint() const
{
    return {QWidget::sizeHint().width(), kFallingHeight};
}

void FallingNotes::setDocument(SequenceDocument* document)
{
    if (document_ != nullptr) {
        document_->disconnect(this);
        document_->transport().disconnect(this);
    }
    document_ = document;
    isIndexed_ = false;
    const auto showChange = [this] {
        isIndexed_ = false;
        update();
    };
    if (document_ != nullptr) {
        const Transport& transport = document_->transport();
        connect(document_, &SequenceDocument::changed, this, showChange);
        connect(&transport, &Transport::frame, this, qOverload<>(&QWidget::update));
        connect(&transport, &Transport::moved, this, qOverload<>(&QWidget::update));
    }
    update();
}

void FallingNotes::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (document_ == nullptr)
        return;
    const MusicalTime& time = document_->time();
    double position = document_->transport().position();
    if (reducesMotion(*this)) // the picture moves with the beats only
        position = time.gridAt(position, Grid::Beats);
    const double steps = stepsInSight(time, position);
    for (const GridLine& line : time.gridLines(position, position + steps, Grid::Beats)) {
        const double y = height() * (1.0 - (line.step - position) / steps);
        painter.setPen(palette().color(line.kind == GridLine::Kind::Bar ? QPalette::Mid
                                                                        : QPalette::AlternateBase));
        painter.drawLine(QPointF(0.0, y), QPointF(width(), y));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    paintNotes(painter, position, steps);
}

void FallingNotes::paintNotes(QPainter& painter, double position, double steps)
{
    if (!std::exchange(isIndexed_, true))
        index_.rebuild(document_->sequence().notes());
    const KeyboardPicture keys = keyboard_.picture();
    std::array<QRectF, 128> places;
    for (const KeyQuad& quad : keys.geometry.keys(1.0F))
        places[static_cast<std::size_t>(quad.key)] =
            QRectF(keys.origin + quad.left, 0.0, quad.right - quad.left, 0.0);
    const QRectF below(keys.origin + keys.geometry.left(), 0.0, kEdgeWidth, 0.0);
    const QRectF above(keys.origin + keys.geometry.right() - kEdgeWidth, 0.0, kEdgeWidth, 0.0);
    RollColors colors(palette());
    if (const PracticeSession& session = document_->practiceSession(); session.isRunning())
        colors.practised = session.part();
    const auto yOf = [&](double step) { return height() * (1.0 - (step - position) / steps); };
    painter.setPen(Qt::NoPen);
    index_.visit(document_->sequence().notes(), position, position + steps, [&](const Note& note) {
        const int key = static_cast<int>(note.key);
        const bool isBelow = key<keys.geometry.lo, isAbove = key> keys.geometry.hi;
        QRectF place = isBelow ? below : isAbove ? above : places[note.key];
        place.setTop(yOf(note.start + note.length));
        place.setBottom(std::max(yOf(note.start), place.top() + kLeastHeight));
        const auto [red, green, blue, opacity] = colors.leftOut;
        painter.setBrush(isBelow || isAbove ? QColor(red, green, blue) : colors.of(note));
        painter.drawRoundedRect(place, kCornerRadius, kCornerRadius);
    });
}

} // namespace velmora
