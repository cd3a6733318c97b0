#include "desktop/KeyRuler.h"

#include "desktop/KeyboardGeometry.h"
#include "preferences/Preferences.h"
#include "tuning/keyName.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kHeight = 30;
constexpr int kGreatestLetter = 11;

/// Names are left out of keys that are too narrow for letters of this height in pixels.
constexpr int kLeastLetter = 6;

} // namespace

KeyRuler::KeyRuler(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kHeight);
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
    const int letter = std::min(geometry.keyWidth * 2 / 3, kGreatestLetter);
    font.setPixelSize(std::max(letter, 1));
    painter.setFont(font);
    painter.setPen(QColor(64, 64, 64));
    for (const KeyQuad& key : geometry.keys(kHeight)) {
        if (key.right < static_cast<float>(x_) || key.left > static_cast<float>(x_ + width()))
            continue;
        const QRectF place(key.left, kHeight - key.top, key.right - key.left, key.top - key.bottom);
        painter.fillRect(place, key.isBlack ? Qt::black : Qt::white);
        if (key.key % 12 == 0 && letter >= kLeastLetter)
            painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                             QString::fromStdString(noteName(static_cast<unsigned>(key.key))));
    }
}
