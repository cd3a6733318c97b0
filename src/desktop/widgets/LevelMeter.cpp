#include "desktop/widgets/LevelMeter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kLeast = -60.0;
constexpr double kLoud = -9.0;    ///< From here on the bar is yellow,
constexpr double kLimited = -1.0; ///< and red where the limiter may be at work.
constexpr double kFall = 1.5;     ///< Decibels by which the bar falls at each call.
constexpr int kBarHeight = 8;
constexpr int kGap = 3;
constexpr int kWidth = 220;

double decibels(float amplitude)
{
    return std::max(kLeast, 20.0 * std::log10(std::max(amplitude, 1e-6F)));
}

} // namespace

LevelMeter::LevelMeter(QWidget* parent) : QWidget(parent)
{
    levels_.fill(kLeast);
    setMinimumSize(kWidth, 2 * kBarHeight + kGap);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Level"));
}

void LevelMeter::setPeaks(const std::array<float, 2>& peaks)
{
    for (std::size_t i = 0; i < levels_.size(); ++i)
        levels_[i] = std::max(decibels(peaks[i]), std::max(kLeast, levels_[i] - kFall));
    update();
}

void LevelMeter::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const auto place = [this](double level) {
        return static_cast<int>(std::lround(width() * (level - kLeast) / -kLeast));
    };
    int top = 0;
    for (const double level : levels_) {
        painter.fillRect(0, top, width(), kBarHeight, palette().color(QPalette::Dark));
        const auto fill = [&](double from, double to, const QColor& color) {
            if (level > from)
                painter.fillRect(place(from), top, place(std::min(level, to)) - place(from),
                                 kBarHeight, color);
        };
        fill(kLeast, kLoud, QColor(0x3c, 0xa0, 0x4b));
        fill(kLoud, kLimited, QColor(0xd8, 0xb0, 0x28));
        fill(kLimited, 0.0, QColor(0xc8, 0x3c, 0x32));
        top += kBarHeight + kGap;
    }
}

} // namespace velmora
