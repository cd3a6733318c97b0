#include "desktop/keyboard/KeyboardView.h"

#include "desktop/keyboard/KeyboardAccessible.h"
#include "midi/midiRead.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/LiveKeys.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace velmora {

namespace {

constexpr int kDefaultHeight = 120;
constexpr int kMinHeight = 48;

} // namespace

KeyboardView::KeyboardView(LiveInput& input, const LiveKeys& keys, QWidget* parent)
    : QOpenGLWidget(parent), input_(input), keys_(keys)
{
    QAccessible::installFactory(makeKeyboardAccessible);
    setAccessibleName(tr("Piano keyboard"));
    setFocusPolicy(Qt::TabFocus);
}

void KeyboardView::setDocument(KeyboardDocument* document)
{
    document_ = document;
    refresh();
}

void KeyboardView::midiInput()
{
    if (document_ != nullptr)
        document_->midiInput();
    refresh();
}

void KeyboardView::setPurities(const std::array<Purity, 128>& purities)
{
    purities_ = purities;
    refresh();
}

void KeyboardView::refresh()
{
    if (painted_ != picture())
        update();
}

QSize KeyboardView::sizeHint() const
{
    const int keys = getPrefInt("KeyRangeHi") - getPrefInt("KeyRangeLo") + 1;
    return {getPrefInt("KeyWidth") * keys, kDefaultHeight};
}

QSize KeyboardView::minimumSizeHint() const
{
    const double width =
        KeyboardGeometry::minWidth(getPrefInt("KeyRangeLo"), getPrefInt("KeyRangeHi"));
    return {static_cast<int>(std::ceil(width)), kMinHeight};
}

KeyboardPicture KeyboardView::picture() const
{
    KeyboardPicture picture(size(), palette());
    picture.states = keyStates(document_, keys_);
    picture.purities = purities_;
    return picture;
}

void KeyboardView::paintGL()
{
    const KeyboardPicture next = picture();
    announceKeys(*this, painted_.value_or(next), next);
    painted_ = next;
    // Painted in memory, where edges are smooth with every driver.
    const double ratio = devicePixelRatioF();
    QImage image(QSizeF(width() * ratio, height() * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter memory(&image);
    memory.setFont(font());
    painted_->paint(memory);
    memory.end();
    QPainter(this).drawImage(QPoint(), image);
}

void KeyboardView::press(int key)
{
    if (key == pressedKey_)
        return;
    if (pressedKey_ != kNoKey)
        input_.keyOff(pressedKey_);
    pressedKey_ = key;
    if (key != kNoKey)
        input_.keyOn(key, 1.0F); // docs/decisions.md, 43
    midiInput();
}

void KeyboardView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        press(picture().keyAt(event->position()));
}

void KeyboardView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        press(picture().keyAt(event->position()));
}

void KeyboardView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        press(kNoKey);
}

bool KeyboardView::event(QEvent* event)
{
    // Under a dialog the view receives no mouse release either.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate)
        press(kNoKey);
    return QOpenGLWidget::event(event);
}

void KeyboardView::hideEvent(QHideEvent* event)
{
    press(kNoKey); // a hidden view receives no mouse release
    QOpenGLWidget::hideEvent(event);
}

} // namespace velmora
