#include "desktop/roll/RollPicture.h"

#include "desktop/keyboard/KeyboardGeometry.h"
#include "sequencer/SequenceDocument.h"
#include "sound/keys.h"

#include <QPalette>

#include <cmath>

namespace velmora {

namespace {

constexpr float kEndOpacity = 0.05F;
constexpr float kIntervalOpacity = 0.5F;

/// The distance between the darker grid lines.
constexpr int kStepsPerBar = 8;

/// If a step is lower than this many pixels, only the darker grid lines are drawn, because all the
/// lines together would cover the roll.
constexpr int kMinGridStep = 3;

using Shade = decltype(RollVertex::color);

Shade shade(const Color& color, float alpha)
{
    const auto byte = [](float part) { return static_cast<std::uint8_t>(std::lround(255 * part)); };
    return {byte(color.red), byte(color.green), byte(color.blue), byte(alpha)};
}

/// Returns a gray of level 0, black, to 255, white.
constexpr Shade gray(std::uint8_t level)
{
    return {level, level, level, 255};
}

constexpr Shade kWhiteKey = gray(255);
constexpr Shade kBlackKey = gray(179); // 70 %
constexpr Shade kMiddleCKey{255, 255, 179, 255};
constexpr Shade kColumnLine = gray(77); // 30 %
constexpr Shade kStepLine = gray(204);  // 80 %
constexpr Shade kBarLine = gray(153);   // 60 %

Shade columnShade(int key)
{
    if (key == kMiddleC)
        return kMiddleCKey;
    return isBlackKey(key) ? kBlackKey : kWhiteKey;
}

/// Returns the colour half-way between `color` and white.
QColor light(const QColor& color)
{
    return QColor::fromRgbF((color.redF() + 1) / 2, (color.greenF() + 1) / 2,
                            (color.blueF() + 1) / 2);
}

} // namespace

// The roll is white in every theme, so the selected time is a light tint of the selection colour,
// against which selected notes stand out.
RollColors::RollColors(const QPalette& palette)
    : note("NoteColor"), playing("NoteColorPlaying"),
      selected(palette.color(QPalette::Active, QPalette::Highlight)),
      interval(light(palette.color(QPalette::Active, QPalette::Highlight)))
{
}

void RollPicture::draw(const RollGeometry& geometry, const RollColors& colors, double line,
                       const SequenceDocument& document, const RollIndex& index)
{
    vertices_.clear();
    for (int key = geometry.firstKey(); key < geometry.endKey(); ++key)
        if (const Shade color = columnShade(key); color != kWhiteKey)
            add(geometry.column(key), color);
    blendedBegin_ = vertices_.size();
    if (const Interval& interval = document.transport().interval(); !interval.isEmpty())
        add({0.0, geometry.width, geometry.yOf(interval.start), geometry.yOf(interval.end)},
            shade(colors.interval, kIntervalOpacity));
    addNotes(geometry, colors, document, index);
    blendedEnd_ = vertices_.size();
    addGrid(geometry, line);
    const double position = geometry.yOf(document.transport().position());
    add({0.0, geometry.width, position, position + line}, shade(colors.selected, 1.0F));
}

void RollPicture::addNotes(const RollGeometry& geometry, const RollColors& colors,
                           const SequenceDocument& document, const RollIndex& index)
{
    struct Gradient {
        explicit Gradient(const Color& color)
            : onset(shade(color, color.alpha)), end(shade(color, kEndOpacity))
        {
        }
        Shade onset, end;
    };
    const Gradient selected(colors.selected), playing(colors.playing), plain(colors.note);
    index.visit(
        document.sequence().notes(), geometry.bottomStep(), geometry.topStep(),
        [&](const Note& note) {
            const Gradient& gradient = note.selected ? selected : note.active ? playing : plain;
            add(geometry.note(note), gradient.onset, gradient.end);
        });
}

// Lines are narrow quads, so that they cover the same pixels with every driver.
void RollPicture::addGrid(const RollGeometry& geometry, double line)
{
    for (int key = geometry.firstKey(); key <= geometry.endKey(); ++key) {
        const double left = geometry.xOf(key);
        add({left, left + line, 0.0, geometry.height}, kColumnLine);
    }
    const int stride = geometry.keyHeight < kMinGridStep ? kStepsPerBar : 1;
    for (int step = geometry.firstStep() / stride * stride; step < geometry.endStep();
         step += stride) {
        const double bottom = geometry.yOf(step);
        add({0.0, geometry.width, bottom, bottom + line},
            step % kStepsPerBar == 0 ? kBarLine : kStepLine);
    }
}

void RollPicture::add(const RollQuad& quad, Shade bottom, Shade top)
{
    const auto [left, right, low, high] =
        std::array{static_cast<float>(quad.left), static_cast<float>(quad.right),
                   static_cast<float>(quad.bottom), static_cast<float>(quad.top)};
    vertices_.insert(
        vertices_.end(),
        {{left, low, bottom}, {right, low, bottom}, {right, high, top}, {left, high, top}});
}

} // namespace velmora
