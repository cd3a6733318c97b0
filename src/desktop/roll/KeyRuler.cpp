#include "desktop/roll/KeyRuler.h"

#include "desktop/keyboard/KeyboardGeometry.h"
#include "preferences/Preferences.h"
#include "tuning/keyName.h"

#include <QPainter>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kRulerHeight = 30;
constexpr int kGreatestRulerLetter = 11;

/// Names are left out of keys that are too narrow for letters of this height in pixels.
constexpr int kLeastRulerLetter = 6;

} // namespace

KeyRuler::KeyRuler(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kRulerHeight);
    setAccessibleName(tr("Names of the keys"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KeyRuler::scrollTo(int x)
{
    x_ = x;
    update();
}

void KeyRuler::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.translate(-x_, 0);
    // From a C on, the keys of an octave lie under its columns.
    const KeyboardGeometry geometry{getPrefInt("KeyWidth"), 0, 127};
    QFont font = painter.font();
    const int letter = std::min(geometry.keyWidth * 2 / 3, kGreatestRulerLetter);
    font.setPixelSize(std::max(letter, 1));
    painter.setFont(font);
    painter.setPen(QColor(64, 64, 64));
    for (const KeyQuad& key : geometry.keys(kRulerHeight)) {
        if (key.right < static_cast<float>(x_) || key.left > static_cast<float>(x_ + width()))
            continue;
        const QRectF place(key.left, kRulerHeight - key.top, key.right - key.left,
                           key.top - key.bottom);
        painter.fillRect(place, key.isBlack ? Qt::black : Qt::white);
        if (key.key % 12 == 0 && letter >= kLeastRulerLetter)
            painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                             QString::fromStdString(noteName(static_cast<unsigned>(key.key))));
    }
}

} // namespace velmora
