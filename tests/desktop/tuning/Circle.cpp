#include "desktop/tuning/Circle.h"

#include "desktop/tuning/HeldMoment.h"
#include "tuning/Temperament.h"

#include <QRectF>
#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

namespace {

TuningMoment momentOf(const Temperament& temperament)
{
    TuningMoment moment;
    for (unsigned key = 0; key < kKeys; ++key)
        moment.hertz[key] = temperament.getPitch(key) / 2;
    return moment;
}

} // namespace

TEST(Circle, RunsByFifthsAndEndsInTheWolf)
{
    TuningMoment moment = momentOf(Temperament::Meantone());
    moment.sounding.set(76);
    const Circle circle(moment, 4);
    ASSERT_EQ(circle.notes.size(), 12U);
    EXPECT_EQ(circle.notes[1].name, "G");
    EXPECT_EQ(circle.notes[11].name, "F");
    double sum = 0.0;
    for (std::size_t i = 0; i < 12; ++i) {
        const CircleNote& note = circle.notes[i];
        sum += note.fifth.distance;
        EXPECT_EQ(note.sounds, i == 4) << note.name;
        EXPECT_NEAR(note.fifth.distance, i == 8 ? 35.68 : -5.38, 0.01) << note.name;
        const bool isWolf = i >= 5 && i <= 8; // from B, F#, C# and G#
        EXPECT_NEAR(note.third.distance, isWolf ? 41.06 : 0.0, 0.01) << note.name;
    }
    EXPECT_NEAR(sum, -23.46, 0.01) << "the Pythagorean comma";
    const Circle higher(moment, 5);
    EXPECT_NEAR(higher.notes[2].fifth.beatsPerSecond, 2 * circle.notes[2].fifth.beatsPerSecond,
                1e-9);
}

TEST(Circle, ShowsTheDegreesOfOtherScalesAsFarAsTheyRepeat)
{
    TuningMoment moment;
    moment.repeatsEveryOctave = false;
    for (unsigned key = 0; key < kKeys; ++key) // nineteen equal steps in an octave
        moment.hertz[key] = 261.0 * std::exp2((static_cast<double>(key) - 60.0) / 19.0);
    moment.hertz[62] = 0.0;
    const Circle circle(moment, 4);
    ASSERT_EQ(circle.notes.size(), 18U) << "one key has no pitch";
    EXPECT_EQ(circle.notes[2].name, "3");
    EXPECT_NEAR(circle.notes[5].cents, 6 * 1200.0 / 19, 1e-9);
    EXPECT_NEAR(circle.notes[5].fifth.distance, -7.366, 1e-3) << "the major third";

    moment.period = 30 * 1200.0 / 19;
    EXPECT_EQ(Circle(moment, 4).notes.size(), 29U) << "the period is wider than the octave";
    moment.period = -1200.0;
    EXPECT_EQ(Circle(moment, 4).notes.size(), 18U) << "a scale that goes down";
}

TEST(CircleGeometry, FindsTheNoteUnderThePointer)
{
    const CircleGeometry places(QSizeF(400, 300), 12);
    EXPECT_NEAR(places.note(0).x(), 200.0, 1e-9);
    EXPECT_LT(places.note(0).y(), 150.0) << "the first note is at the top";
    EXPECT_GT(places.note(3).x(), 200.0) << "and the others follow clockwise";
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(places.noteAt(places.note(i) + QPointF(3, -3)), i);
        EXPECT_FALSE(places.noteAt(places.fifth(i)));
    }
    EXPECT_FALSE(places.noteAt({200, 150}));
}

TEST(CircleGeometry, KeepsTheNumbersApart)
{
    for (const std::size_t notes : {5, 12, 13, 19, 24}) {
        const CircleGeometry places(QSizeF(346, 346), notes);
        const auto label = [&](std::size_t position) {
            QRectF field(QPointF(), places.labelRoom());
            field.moveCenter(places.third(position % notes));
            return field;
        };
        EXPECT_GT(places.labelRoom().width(), 38.0) << "large enough to be read";
        for (std::size_t i = 0; i < notes; ++i) {
            EXPECT_FALSE(label(i).intersects(label(i + 1))) << i << " of " << notes;
            for (const QPointF corner : {label(i).topLeft(), label(i).topRight(),
                                         label(i).bottomLeft(), label(i).bottomRight()})
                EXPECT_FALSE(places.noteAt(corner)) << i << " of " << notes;
        }
    }
}

TEST(HeldMoment, KeepsAChordWhileItsKeysAreReleased)
{
    HeldMoment held;
    TuningMoment chord, rest, silence, next;
    chord.sounding.set(60).set(64);
    rest.sounding.set(64);
    next.sounding.set(64).set(65);
    held.take(chord, 1.0);
    held.take(rest, 1.2);
    EXPECT_EQ(held.moment(), chord) << "its keys are not released together";
    held.take(rest, 2.0);
    EXPECT_EQ(held.moment(), rest) << "one key is held on";
    held.take(chord, 3.0);
    held.take(silence, 3.1);
    held.take(silence, 7.0);
    EXPECT_EQ(held.moment(), chord) << "it can still be read";
    held.take(silence, 9.0);
    EXPECT_EQ(held.moment(), silence);
    held.take(chord, 10.0);
    held.take(next, 10.1);
    EXPECT_EQ(held.moment(), next) << "another chord shows at once";
}

} // namespace velmora
