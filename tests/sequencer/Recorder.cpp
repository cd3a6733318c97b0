#include "sequencer/Recorder.h"

#include "support/SequenceTest.h"

#include <gmock/gmock.h>

#include <thread>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;

namespace {

class RecorderTest : public SequenceTest {
protected:
    /// Runs for a number of steps, in ticks of 1/64 step.
    void run(double steps)
    {
        for (double done = 0.0; done < steps; done += 1.0 / 64.0)
            tick(1.0 / 64.0);
    }

    /// The key, start and length of each note, rounded to tenths.
    std::vector<std::tuple<unsigned, double, double>> recorded() const
    {
        std::vector<std::tuple<unsigned, double, double>> result;
        for (const Note& note : document_.sequence().notes())
            result.emplace_back(note.key, std::round(note.start * 10.0) / 10.0,
                                std::round(note.length * 10.0) / 10.0);
        return result;
    }
};

} // namespace

TEST_F(RecorderTest, RunsOnForEightStepsAfterTheLastKey)
{
    recorder_.setChannel(3);
    recorder_.record();
    transport_.play();
    EXPECT_EQ(transport_.mode(), Transport::Mode::Recording) << "playing is refused";
    run(1.0);
    EXPECT_LT(transport_.position(), 0.1) << "it waits for the first key";
    press(60);
    run(2.0);
    release(60);
    run(1.0);
    press(60);
    run(1.0);
    press(64); // leaves the note of the first key as it is
    run(1.0);
    release(60);
    release(64);
    run(20.0);
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(60, 0.0, 2.0), FieldsAre(60, 3.0, 2.0),
                                        FieldsAre(64, 4.0, 1.0)));
    EXPECT_EQ(document_.sequence().notes()[0].channel, 3U);
    EXPECT_EQ(document_.sequence().notes()[0].velocity, 0.5F);
    EXPECT_NEAR(transport_.position(), 13.0, 0.1);
    EXPECT_NEAR(transport_.extent(), 45.0, 0.1);

    EXPECT_TRUE(document_.isModified());
    recorder_.record();
    EXPECT_EQ(document_.undoStack().undoText(), "Record 3 Note(s)");
    document_.undoStack().undo();
    EXPECT_THAT(recorded(), IsEmpty());
    EXPECT_FALSE(document_.isModified());
}

TEST_F(RecorderTest, KeepsTheLengthOfALongerPiece)
{
    add(72, 200.0, 8.0);
    recorder_.record();
    press(60);
    run(2.0);
    release(60);
    run(1.0);
    EXPECT_EQ(transport_.extent(), 240.0);
    recorder_.record();
    document_.undoStack().undo();
    EXPECT_EQ(transport_.extent(), 240.0);
}

TEST_F(RecorderTest, MovesOnTheGridOnlyWhileAKeyIsHeld)
{
    add(64, 0.0, 1.0);
    add(64, 50.0, 1.0);
    transport_.setPosition(2.0);
    recorder_.setSnapToGrid(true);
    recorder_.record();
    run(5.0);
    EXPECT_EQ(transport_.position(), 2.0);
    press(60);
    run(0.5);
    release(60);
    run(1.0);
    recorder_.record();
    press(64);
    liveKeys_.take(64);
    recorder_.record(); // the key was held before, so it lengthens an existing note
    run(3.0);
    EXPECT_NEAR(transport_.position(), 5.5, 0.1);
    recorder_.record();
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(64, 0.0, 5.0), FieldsAre(60, 2.0, 0.0),
                                        FieldsAre(64, 50.0, 1.0)))
        << "sorted, and notes ahead are unchanged";
    document_.undoStack().undo();
    document_.undoStack().undo();
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(64, 0.0, 1.0), FieldsAre(64, 50.0, 1.0)));
}

TEST_F(RecorderTest, TakesAKeyWhereItArrivedIfATickIsLate)
{
    const double step = 1.0 / 15.0;
    recorder_.record();
    press(60);
    run(1.0);
    now_ += step;
    release(60);
    press(64);
    now_ += step;
    press(65); // is pressed and released between two ticks
    now_ += step;
    release(65);
    tick(1.0);
    // The last key arrives after the tick has read the clock.
    liveKeys_.press(67, 0.5F, now_ + 1.0);
    tick(0.01);
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(60, 0.0, 2.0), FieldsAre(64, 2.0, 3.0),
                                        FieldsAre(65, 3.0, 1.0)));
}

TEST_F(RecorderTest, BeginsWithTheMomentOfAKeyThatBecomesKnownLate)
{
    const double step = 1.0 / 15.0;
    recorder_.record();
    tick(10.0); // it waits
    const double begun = now_ - 6.0 * step;
    liveKeys_.press(60, 0.5F, begun);
    liveKeys_.press(64, 0.5F, begun + 2.0 * step);
    liveKeys_.release(60, begun + 3.0 * step);
    tick(1.0);
    liveKeys_.release(64, begun + 5.0 * step);
    tick(20.0); // it waits again, 8 steps after the last key
    EXPECT_NEAR(transport_.position(), 15.0, 0.1);
    liveKeys_.press(67, 0.5F, now_ - 3.0 * step);
    tick(1.0);
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(60, 0.0, 3.0), FieldsAre(64, 2.0, 3.0),
                                        FieldsAre(67, 15.0, 4.0)));
}

TEST_F(RecorderTest, LosesNothingWhileTheMainThreadSleeps)
{
    struct Strike {
        unsigned key;
        double start, length; // in seconds
    };
    std::vector<Strike> strikes;
    for (unsigned i = 0; i < 40; ++i)
        strikes.push_back({60 + i % 3, 0.0123 * i, i % 4 == 0 ? 0.0 : 0.0031 * (i % 4)});
    recorder_.record();
    const double begun = now_;
    std::thread player([&] {
        for (const auto& [key, start, length] : strikes) {
            liveKeys_.press(key, 0.5F, begun + start);
            liveKeys_.release(key, begun + start + length);
        }
    });
    player.join();
    now_ += 0.500;
    transport_.tick();
    liveKeys_.press(72, 0.5F, now_ - 0.001); // arrives late
    liveKeys_.press(70, 0.5F, now_ + 0.004); // is announced
    liveKeys_.press(71, 0.5F, now_ + 0.002);
    tick(1.0);
    strikes.insert(strikes.end(), {{72, 0.499, 0.0}, {71, 0.502, 0.0}, {70, 0.504, 0.0}});
    const auto& notes = document_.sequence().notes();
    ASSERT_EQ(notes.size(), strikes.size());
    for (std::size_t i = 0; i < strikes.size(); ++i) {
        EXPECT_EQ(notes[i].key, strikes[i].key) << i;
        EXPECT_NEAR(notes[i].start / 15.0, strikes[i].start, 1e-4) << i;
        EXPECT_NEAR(notes[i].length / 15.0, strikes[i].length, i < 40 ? 0.001 : 1.0) << i;
        EXPECT_GT(notes[i].length, 0.0) << i;
    }
}

TEST_F(RecorderTest, LeavesOlderNotesAloneInTheMusicalReading)
{
    SequenceDocument musical(*this, Reading::Musical, [this] { return now_; });
    musical.edit()->addNote({.length = 1.0, .velocity = 1.0F, .key = 60});
    press(60);
    musical.practice().midiInput();
    musical.recorder().record(); // while the key is still down
    now_ += 1.0;
    musical.transport().tick();
    EXPECT_EQ(musical.transport().position(), 0.0) << "it waits for the next key";
    press(62);
    now_ += 1.0;
    musical.transport().tick();
    EXPECT_EQ(musical.sequence().notes().at(0).length, 1.0);
    EXPECT_NEAR(musical.sequence().notes().at(1).length, 16.0, 1e-6) << "a second at tempo 120";
}

} // namespace velmora
