#include "desktop/roll/SequenceView.h"

#include "desktop/roll/RollAccessible.h"
#include "desktop/widgets/graphics.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr int kAutoScrollMilliseconds = 16;

/// The part of the mouse's distance from the edge by which the roll scrolls each time.
constexpr double kAutoScrollFraction = 0.25;

/// The range of the letters' height in pixels. No names are shown in columns that are too narrow
/// for the name of C sharp, which is among the widest.
constexpr int kMinName = 9;
constexpr int kMaxName = 13;
constexpr unsigned kWidestKey = 61;
constexpr double kNameMargin = 4.0;

/// Exchanges x and y.
constexpr std::array kMirror{0.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0,
                             0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0};

/// How much louder a note becomes with a notch of the wheel.
constexpr double kVelocityNotch = 4.0 / 127.0;

} // namespace

SequenceView::SequenceView(QWidget* parent) : QOpenGLWidget(parent)
{
    QAccessible::installFactory(makeRollAccessible);
    setAccessibleName(tr("Piano roll"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    autoScrollTimer_.setInterval(kAutoScrollMilliseconds);
    connect(&autoScrollTimer_, &QTimer::timeout, this, &SequenceView::autoScroll);
}

void SequenceView::setDocument(const SequenceDocument* document, SequenceEditor* editor)
{
    if (document_ != nullptr) {
        disconnect(document_, nullptr, this, nullptr);
        disconnect(&document_->transport(), nullptr, this, nullptr);
        disconnect(&document_->practiceSession(), nullptr, this, nullptr);
    }
    document_ = document;
    editor_ = editor;
    button_ = Qt::NoButton;
    autoScrollTimer_.stop();
    if (document_ != nullptr) {
        connect(document_, &SequenceDocument::changed, this, &SequenceView::redraw);
        connect(document_, &SequenceDocument::changed, this, [this] { announceNotes(*this); });
        connect(&document_->transport(), &Transport::moved, this,
                qOverload<>(&SequenceView::update));
        for (const auto change : {&PracticeSession::started, &PracticeSession::ended})
            connect(&document_->practiceSession(), change, this,
                    qOverload<>(&SequenceView::update));
    }
    emit documentChanged();
    redraw();
}

void SequenceView::setScale(RollScale scale)
{
    scale_ = scale;
    redraw();
}

void SequenceView::setTimeAcross(bool isAcross)
{
    if (std::exchange(isAcross_, isAcross) == isAcross)
        return;
    emit turned();
    update();
}

void SequenceView::scrollTo(QPoint point)
{
    offset_ = point;
    update();
}

RollGeometry SequenceView::rollGeometry() const
{
    return {scale_.keyWidth,
            scale_.keyHeight,
            static_cast<double>(offset_.x()),
            static_cast<double>(offset_.y()),
            static_cast<double>(isAcross_ ? height() : width()),
            static_cast<double>(isAcross_ ? width() : height()),
            isAcross_};
}

void SequenceView::redraw()
{
    isIndexed_ = false;
    update();
}

void SequenceView::updateIndex()
{
    // While recording, the notes change at every tick.
    if (!std::exchange(isIndexed_, document_->transport().mode() != Transport::Mode::Recording))
        index_.rebuild(document_->sequence().notes());
}

void SequenceView::paintGL()
{
    RollColors colors(palette());
    const auto [red, green, blue, opacity] = colors.whiteColumn;
    const auto part = [](int value) { return static_cast<float>(value) / 255.0F; };
    glClearColor(part(red), part(green), part(blue), 1);
    glClear(GL_COLOR_BUFFER_BIT);
    if (document_ == nullptr)
        return;
    if (const PracticeSession& session = document_->practiceSession(); session.isRunning())
        colors.practised = session.part();

    setPixelCoordinates(*this, 0);
    if (isAcross_)
        glMultMatrixd(kMirror.data());
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);

    updateIndex();
    const double ratio = devicePixelRatioF();
    const double line = std::max(1.0, std::floor(ratio)) / ratio;
    picture_.draw(rollGeometry(), colors, line, *document_, index_);
    const auto& vertices = picture_.vertices();
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(2, GL_FLOAT, sizeof(RollVertex), &vertices.front().x);
    glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(RollVertex), vertices.front().color.data());
    const auto drawQuads = [](std::size_t begin, std::size_t end) {
        glDrawArrays(GL_QUADS, static_cast<GLint>(begin), static_cast<GLsizei>(end - begin));
    };
    drawQuads(0, picture_.blendedBegin());
    glEnable(GL_BLEND);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE); // the picture stays opaque
    drawQuads(picture_.blendedBegin(), picture_.blendedEnd());
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_BLEND);
    drawQuads(picture_.blendedEnd(), vertices.size());
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
    if (colors.scheme == Scheme::Calm && getPrefBool("KeyNames"))
        drawNames(colors);
    if (editor_ != nullptr && editor_->band())
        drawBand(colors);
}

void SequenceView::drawBand(const RollColors& colors)
{
    const RollGeometry geometry = rollGeometry();
    const auto [one, other] = *editor_->band();
    const auto [lowest, highest] = std::minmax({std::floor(one.key), std::floor(other.key)});
    const auto [from, to] = std::minmax({one.step, other.step});
    const QRectF area = geometry.inView(
        {geometry.xOf(lowest), geometry.xOf(highest + 1), geometry.yOf(from), geometry.yOf(to)});
    const auto [red, green, blue, opacity] = colors.interval;
    QPainter painter(this);
    painter.fillRect(area, QColor(red, green, blue, opacity));
    painter.setPen(QColor(red, green, blue));
    painter.drawRect(area);
}

void SequenceView::drawNames(const RollColors& colors)
{
    const RollGeometry geometry = rollGeometry();
    QFont small = font();
    small.setPixelSize(
        std::clamp(isAcross_ ? geometry.keyWidth - 4 : geometry.keyWidth / 3, kMinName, kMaxName));
    const QFontMetricsF metrics(small);
    const double least =
        isAcross_ ? small.pixelSize() : metrics.horizontalAdvance(noteText(kWidestKey));
    if (least > geometry.keyWidth - 4)
        return;
    QPainter painter(this);
    painter.setFont(small);
    index_.visit(document_->sequence().notes(), geometry.bottomStep(), geometry.topStep(),
                 [&](const Note& note) {
                     const QString name = noteText(note.key);
                     const QRectF place = nameIn(
                         geometry.block(note), {metrics.horizontalAdvance(name), metrics.height()});
                     if (place.isEmpty())
                         return;
                     painter.setPen(inkOn(colors.of(note)));
                     painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, name);
                 });
}

QRectF SequenceView::nameIn(const RollQuad& block, QSizeF name) const
{
    RollQuad place = block;
    place.bottom = std::max(block.bottom, 0.0) + kNameMargin; // in sight, and near the onset
    place.top = place.bottom + (isAcross_ ? name.width() : name.height());
    return place.top > block.top - kNameMargin ? QRectF() : rollGeometry().inView(place);
}

RollPoint SequenceView::rollPoint(const QPointF& point) const
{
    return rollGeometry().pointAt(point.x(), point.y());
}

RollHit SequenceView::hitAt(const QPointF& point)
{
    updateIndex();
    const RollPoint place = rollPoint(point);
    RollHit hit = RollHit::Nothing;
    index_.visit(document_->sequence().notes(), place.step, place.step, [&](const Note& note) {
        if (const RollHit here = rollHit(note, place, scale_.keyHeight); here != RollHit::Nothing)
            hit = here; // the last one is on top
    });
    return hit;
}

void SequenceView::updateCursor(Qt::KeyboardModifiers modifiers)
{
    if (button_ != Qt::NoButton || document_ == nullptr)
        return;
    if (modifiers.testFlag(Qt::ControlModifier)) {
        setCursor(Qt::CrossCursor);
        return;
    }
    switch (hitAt(mapFromGlobal(QPointF(QCursor::pos())))) {
    case RollHit::Note:
        setCursor(Qt::SizeAllCursor);
        break;
    case RollHit::NoteEnd:
        setCursor(isAcross_ ? Qt::SizeHorCursor : Qt::SizeVerCursor);
        break;
    case RollHit::Nothing:
        unsetCursor();
        break;
    }
}

void SequenceView::mousePressEvent(QMouseEvent* event)
{
    if (editor_ == nullptr || button_ != Qt::NoButton)
        return;
    if (event->button() == Qt::LeftButton)
        editor_->mouseDown(rollPoint(event->position()), event->modifiers());
    else if (event->button() == Qt::RightButton)
        editor_->rightMouseDown(rollPoint(event->position()));
    else if (event->button() == Qt::MiddleButton)
        editor_->beginBand(rollPoint(event->position()));
    else
        return;
    button_ = event->button();
    redraw();
}

void SequenceView::mouseMoveEvent(QMouseEvent* event)
{
    if (button_ == Qt::NoButton || editor_ == nullptr) {
        updateCursor(event->modifiers());
        return;
    }
    drag(event->position(), event->modifiers());
}

void SequenceView::drag(const QPointF& point, Qt::KeyboardModifiers modifiers)
{
    dragPosition_ = point;
    dragModifiers_ = modifiers;
    if (editor_->isMoving())
        setCursor((modifiers & (Qt::ControlModifier | Qt::AltModifier)) != 0 ? Qt::DragCopyCursor
                                                                             : Qt::SizeAllCursor);
    if (QRectF(rect()).contains(point))
        autoScrollTimer_.stop();
    else if (!autoScrollTimer_.isActive())
        autoScrollTimer_.start();
    editor_->mouseDragged(rollPoint(point));
    redraw();
}

void SequenceView::autoScroll()
{
    const double x = dragPosition_.x() - std::clamp(dragPosition_.x(), 0.0, width() - 1.0);
    const double y = dragPosition_.y() - std::clamp(dragPosition_.y(), 0.0, height() - 1.0);
    emit draggedBeyondEdge(
        rollGeometry().towards(QPoint(static_cast<int>(std::round(x * kAutoScrollFraction)),
                                      static_cast<int>(std::round(y * kAutoScrollFraction)))));
    drag(dragPosition_, dragModifiers_);
}

void SequenceView::changeVelocityAt(const QPointF& place, int notches)
{
    if (editor_ != nullptr && button_ == Qt::NoButton)
        editor_->changeVelocityAt(rollPoint(place), notches * kVelocityNotch);
}

void SequenceView::mouseReleaseEvent(QMouseEvent* event)
{
    if (editor_ == nullptr || event->button() != button_)
        return;
    button_ = Qt::NoButton;
    autoScrollTimer_.stop();
    editor_->mouseUp(rollPoint(event->position()), event->modifiers());
    redraw();
    updateCursor(event->modifiers());
}

bool SequenceView::event(QEvent* event)
{
    // During a drag, shortcuts arrive as ordinary key presses, which are ignored.
    if (event->type() == QEvent::ShortcutOverride && button_ != Qt::NoButton) {
        event->accept();
        return true;
    }
    return QOpenGLWidget::event(event);
}

void SequenceView::handleKey(const QKeyEvent& event)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    if (editor_ == nullptr || (isPress && button_ != Qt::NoButton))
        return;
    if (isPress) {
        editor_->keyDown(event);
        redraw();
    }
    updateCursor(QGuiApplication::queryKeyboardModifiers());
}

} // namespace velmora
