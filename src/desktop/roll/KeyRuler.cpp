#include "desktop/roll/KeyRuler.h"

#include "desktop/keyboard/KeyboardGeometry.h"
#include "desktop/widgets/noteNames.h"
#include "preferences/Preferences.h"

#include <QPainter>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kRulerHeight = 30;

/// The range of the letters' height in pixels. No names are shown if the keys are too narrow for
/// the smallest letters.
constexpr int kMinRulerLetter = 6;
constexpr int kMaxRulerLetter = 11;

} // namespace

KeyRuler::KeyRuler(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(kRulerHeight);
    setAccessibleName(tr("Key names"));
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
    // A keyboard that starts at a C is aligned with the columns.
    const KeyboardGeometry geometry{static_cast<double>(getPrefInt("KeyWidth")), 0, 127};
    QFont font = painter.font();
    const int letter = std::min(getPrefInt("KeyWidth") * 2 / 3, kMaxRulerLetter);
    font.setPixelSize(std::max(letter, 1));
    painter.setFont(font);
    painter.setPen(QColor(64, 64, 64));
    for (const KeyQuad& key : geometry.keys(kRulerHeight)) {
        if (key.right < static_cast<float>(x_) || key.left > static_cast<float>(x_ + width()))
            continue;
        const QRectF place(key.left, kRulerHeight - key.top, key.right - key.left,
                           key.top - key.bottom);
        painter.fillRect(place, key.isBlack ? Qt::black : Qt::white);
        if (key.key % 12 == 0 && letter >= kMinRulerLetter)
            painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                             noteText(static_cast<unsigned>(key.key)));
    }
}

} // namespace velmora
