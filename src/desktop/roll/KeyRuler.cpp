#include "desktop/roll/KeyRuler.h"

#include "desktop/keyboard/KeyboardPicture.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <QPainter>

#include <utility>

namespace velmora {

namespace {

/// How far the keys reach, in pixels, and how much longer they are if their names stand on their
/// ends.
constexpr int kKeyLength = 34;
constexpr int kNameRoom = 14;

/// The size and the margin of a name on the end of a key, in pixels.
constexpr int kRulerNameSize = 11;
constexpr double kRulerNameEdge = 4.0;

} // namespace

KeyRuler::KeyRuler(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kKeyLength);
    setAccessibleName(tr("Key names"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KeyRuler::setDocument(const SequenceDocument* document)
{
    if (document_ != nullptr)
        disconnect(&document_->transport(), nullptr, this, nullptr);
    document_ = document;
    if (document_ != nullptr)
        connect(&document_->transport(), &Transport::frame, this, &KeyRuler::refresh);
    refresh();
}

void KeyRuler::refresh()
{
    std::array<int, 128> states{};
    if (document_ != nullptr && preferredScheme() == Scheme::Calm)
        states = keyStates(&document_->practice(), document_->transport().host().liveKeys());
    if (states == states_)
        return;
    states_ = states;
    update();
}

void KeyRuler::show(const RollGeometry& geometry)
{
    geometry_ = geometry;
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (geometry.isAcross)
        setFixedWidth(kKeyLength + kNameRoom);
    else
        setFixedHeight(kKeyLength);
    update();
}

void KeyRuler::paintEvent(QPaintEvent* /*event*/)
{
    const bool isUpright = geometry_.isAcross;
    KeyboardPicture picture(isUpright ? size().transposed() : size(), palette());
    // A keyboard that starts at a C is aligned with the columns.
    picture.geometry = {static_cast<double>(geometry_.keyWidth), 0, 127};
    picture.origin = -geometry_.x;
    picture.states = states_;
    QPainter painter(this);
    if (!isUpright) {
        picture.paint(painter);
        return;
    }
    const bool hasNames = std::exchange(picture.hasNames, false); // they would lie on their side
    painter.setWorldTransform(QTransform(0, -1, 1, 0, 0, height()));
    picture.paint(painter);
    painter.resetTransform();
    if (hasNames)
        paintNames(painter, picture);
}

void KeyRuler::paintNames(QPainter& painter, const KeyboardPicture& picture) const
{
    QFont letters = font();
    letters.setPixelSize(kRulerNameSize);
    painter.setFont(letters);
    painter.setPen(Qt::black);
    for (const KeyQuad& quad : picture.geometry.keys(static_cast<float>(width()))) {
        const auto key = static_cast<std::size_t>(quad.key);
        if (quad.key % 12 != 0 || states_[key] != 0)
            continue;
        const double keyHeight = quad.right - quad.left;
        painter.drawText(
            QRectF(0, height() - picture.origin - quad.right, width() - kRulerNameEdge, keyHeight),
            Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
            noteText(static_cast<unsigned>(quad.key)));
    }
}

} // namespace velmora
