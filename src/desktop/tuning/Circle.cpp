#include "desktop/tuning/Circle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr JustInterval kFifth{3, 2}, kMajorThird{5, 4}, kOctave{2, 1};
constexpr unsigned kMiddleKey = 60;
constexpr double kPrecision = 1.0; ///< In cents.

/// The rings as parts of the greatest radius.
constexpr double kNoteRing = 0.74, kFifthRing = 0.92;
constexpr double kThirdsUp = 0.5;

/// The ring of the thirds is narrow at the sides, where their labels would reach the notes, and
/// wide at the top and at the bottom, where they would reach each other.
constexpr double kThirdsAcross = 0.465, kThirdsWidened = 0.06;
constexpr double kLargestNote = 20.0;
constexpr double kLabelWidth = 0.29, kLabelHeight = 0.0925;

/// Of the notes of a scale that has not twelve of them, and of their labels outside of these.
constexpr double kDegreeRing = 0.58, kDegreesAcross = 0.855, kDegreesUp = 0.93;
constexpr std::size_t kFifths = 12, kMostLabels = 24;

double centsBetween(double low, double high)
{
    return 1200.0 * std::log2(high / low);
}

} // namespace

Circle::Circle(const TuningMoment& moment, int octave) : isOfFifths(moment.repeatsEveryOctave)
{
    const auto& hertz = moment.hertz;
    if (isOfFifths) {
        const auto first = static_cast<unsigned>(12 * (octave + 1));
        const auto names = toneNames(moment);
        for (unsigned step = 0; step < 12; ++step) {
            const unsigned tone = 7 * step % 12, key = first + tone;
            CircleNote note{key,   names[tone], centsBetween(hertz[first], hertz[key]),
                            false, {},          {}};
            for (unsigned each = tone; each < kKeys; each += 12)
                note.sounds = note.sounds || moment.sounding[each];
            note.fifth = hearAs(kFifth, hertz[key], hertz[key + 7]);
            note.third = hearAs(kMajorThird, hertz[key], hertz[key + 4]);
            notes.push_back(std::move(note));
        }
        return;
    }
    // A scale that goes down has its period below the first note.
    const double period = moment.period > kPrecision ? moment.period : kOctave.cents();
    for (unsigned key = kMiddleKey; key < kKeys && hertz[kMiddleKey] > 0.0; ++key) {
        if (hertz[key] <= 0.0)
            continue;
        const double cents = centsBetween(hertz[kMiddleKey], hertz[key]);
        if (key > kMiddleKey && cents > period - kPrecision)
            break;
        const double raised = std::exp2(octave - 4);
        CircleNote note{key, std::to_string(key - kMiddleKey), cents, moment.sounding[key], {}, {}};
        note.fifth = hear(hertz[kMiddleKey] * raised, hertz[key] * raised);
        notes.push_back(std::move(note));
    }
}

CircleGeometry::CircleGeometry(QSizeF view, std::size_t notes)
    : notes_(std::max<std::size_t>(notes, 1)), centre_(view.width() / 2, view.height() / 2),
      greatest_(std::min(view.width(), view.height()) / 2),
      ring_((notes_ == kFifths || !hasLabels() ? kNoteRing : kDegreeRing) * greatest_),
      noteRadius_(std::min(
          {kLargestNote, greatest_ / 8, std::numbers::pi * ring_ / static_cast<double>(notes_)}))
{
}

QPointF CircleGeometry::fifth(std::size_t position) const
{
    const double radius = kFifthRing * greatest_;
    return at(static_cast<double>(position) + 0.5, radius, radius);
}

QPointF CircleGeometry::third(std::size_t position) const
{
    const auto place = static_cast<double>(position);
    if (notes_ != kFifths)
        return at(place, kDegreesAcross * greatest_, kDegreesUp * greatest_);
    const QPointF widened = at(3 * place, kThirdsWidened * greatest_, 0.0) - centre_;
    return at(place, kThirdsAcross * greatest_, kThirdsUp * greatest_) + widened;
}

bool CircleGeometry::hasLabels() const
{
    return notes_ <= kMostLabels;
}

QSizeF CircleGeometry::labelRoom() const
{
    const double angle = 2 * std::numbers::pi / static_cast<double>(notes_);
    const double width =
        notes_ > kFifths ? std::min(kLabelWidth, kDegreesAcross * std::sin(angle)) : kLabelWidth;
    return {width * greatest_, kLabelHeight * greatest_};
}

std::optional<std::size_t> CircleGeometry::noteAt(QPointF point) const
{
    for (std::size_t i = 0; i < notes_; ++i) {
        const QPointF away = point - note(i);
        if (std::hypot(away.x(), away.y()) <= noteRadius_)
            return i;
    }
    return std::nullopt;
}

double CircleGeometry::distance(QPointF point) const
{
    const QPointF away = point - centre_;
    return std::hypot(away.x(), away.y());
}

QPointF CircleGeometry::at(double position, double across, double up) const
{
    const double angle = 2 * std::numbers::pi * position / static_cast<double>(notes_);
    return centre_ + QPointF(std::sin(angle) * across, -std::cos(angle) * up);
}

} // namespace velmora
