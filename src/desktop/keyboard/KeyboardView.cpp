#include "desktop/keyboard/KeyboardView.h"

#include "base/Log.h"
#include "desktop/widgets/graphics.h"
#include "desktop/widgets/noteNames.h"
#include "midi/midiRead.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/LiveKeys.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kDefaultHeight = 120;
constexpr int kMinHeight = 48;

/// The range of the letters' height in pixels. No names are shown if the keys are too narrow for
/// the smallest letters.
constexpr int kMinLetter = 7;
constexpr int kMaxLetter = 13;

KeyboardGeometry preferredGeometry()
{
    return {getPrefInt("KeyWidth"), getPrefInt("KeyRangeLo"), getPrefInt("KeyRangeHi")};
}

void drawQuad(const KeyQuad& quad, float depth)
{
    glVertex3f(quad.left, quad.bottom, depth);
    glVertex3f(quad.right, quad.bottom, depth);
    glVertex3f(quad.right, quad.top, depth);
    glVertex3f(quad.left, quad.top, depth);
}

} // namespace

const Color* KeyboardView::Picture::color(int state) const
{
    switch (state) {
    case kPressed:
        return &wrong;
    case kWanted:
    case kWanted | kHeld: // docs/decisions.md, 111
        return &played;
    case kWanted | kPressed:
        return &correct;
    case kHeld:
        return &sustained;
    default:
        return nullptr;
    }
}

KeyboardView::KeyboardView(LiveInput& input, QWidget* parent) : QOpenGLWidget(parent), input_(input)
{
    setAccessibleName(tr("Piano keyboard"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(kMinHeight);
}

void KeyboardView::setDocument(KeyboardDocument* document)
{
    document_ = document;
    refresh();
}

void KeyboardView::refresh()
{
    if (painted_ != picture())
        update();
}

void KeyboardView::updateWindowSize()
{
    const KeyboardGeometry geometry = preferredGeometry();
    if (fitted_ == geometry || window()->isMaximized() || window()->isFullScreen())
        return;
    fitted_ = geometry;
    updateGeometry();
    window()->resize(std::min(geometry.width(), screen()->availableSize().width()),
                     window()->height());
}

QSize KeyboardView::sizeHint() const
{
    return {preferredGeometry().width(), kDefaultHeight};
}

KeyboardView::Picture KeyboardView::picture() const
{
    Picture picture{preferredGeometry(),
                    Color("KeyColor"),
                    Color("KeyColorCorrect"),
                    Color("KeyColorSustain"),
                    Color("KeyColorWrong"),
                    getPrefBool("KeyNames"),
                    {}};
    if (document_ != nullptr) { // docs/decisions.md, 112
        for (int key = picture.geometry.lo; key <= picture.geometry.hi; ++key)
            picture.states[static_cast<std::size_t>(key)] =
                document_->stateOfNote(static_cast<unsigned>(key));
    }
    return picture;
}

int KeyboardView::origin(const KeyboardGeometry& geometry) const
{
    return std::max(0, (width() - static_cast<int>(geometry.extent())) / 2);
}

void KeyboardView::paintGL()
{
    painted_ = picture();
    setPixelCoordinates(*this, -origin(painted_->geometry));
    glEnable(GL_DEPTH_TEST);
    glClearColor(0, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    drawKeys(*painted_);
    glDisable(GL_DEPTH_TEST);
    if (painted_->hasNames)
        drawNames(*painted_);
}

void KeyboardView::drawKeys(const Picture& picture) const
{
    glBegin(GL_QUADS);
    for (const KeyQuad& quad : picture.geometry.keys(static_cast<float>(height()))) {
        const int state = picture.states[static_cast<std::size_t>(quad.key)];
        const Color* color = picture.color(state);
        if (quad.isBlack) {
            glColor3f(0, 0, 0);
            drawQuad(quad, 0.5F);
            if (state == 0)
                continue;
            if (color == nullptr) // docs/decisions.md, 110
                logger("desktop").debug("wrong {}", state);
        }
        if (color != nullptr)
            glColor3f(color->red, color->green, color->blue);
        else if (quad.isBlack)
            glColor3f(0, 0, 1);
        else
            glColor3f(1, 1, 1);
        if (quad.isBlack)
            drawQuad(quad.inner(), 0.6F);
        else
            drawQuad(quad, 0);
    }
    glEnd();
}

void KeyboardView::drawNames(const Picture& picture)
{
    const int letter = std::min(picture.geometry.keyWidth * 3 / 4, kMaxLetter);
    if (letter < kMinLetter)
        return;
    QPainter painter(this);
    QFont font = painter.font();
    font.setPixelSize(letter);
    painter.setFont(font);
    const int below = letter / 2;
    const int left = origin(picture.geometry);
    painter.translate(left, 0);
    for (const KeyQuad& quad : picture.geometry.keys(static_cast<float>(height()))) {
        const bool isCut = static_cast<float>(left) + quad.right > static_cast<float>(width());
        if (quad.key % 12 != 0 || isCut)
            continue;
        const Color* color = picture.color(picture.states[static_cast<std::size_t>(quad.key)]);
        const bool isDark = color != nullptr && qGray(color->toQColor().rgb()) < 96;
        painter.setPen(isDark ? Qt::white : QColor(64, 64, 64));
        const QRect place(qRound(quad.left), 0, qRound(quad.right - quad.left), height() - below);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                         noteText(static_cast<unsigned>(quad.key)));
    }
}

int KeyboardView::keyAt(const QPointF& point) const
{
    const KeyboardGeometry geometry = preferredGeometry();
    const double x = point.x() - origin(geometry);
    if (x < 0 || x >= geometry.extent())
        return kNoKey;
    const int key = geometry.keyAt(x, height() - point.y(), height());
    return key >= 0 && key < 128 ? key : kNoKey;
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
    if (document_ != nullptr)
        document_->midiInput();
}

void KeyboardView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        press(keyAt(event->position()));
}

void KeyboardView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        press(keyAt(event->position()));
}

void KeyboardView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        press(kNoKey);
}

void KeyboardView::hideEvent(QHideEvent* event)
{
    press(kNoKey); // a hidden view receives no mouse release
    QOpenGLWidget::hideEvent(event);
}

} // namespace velmora
