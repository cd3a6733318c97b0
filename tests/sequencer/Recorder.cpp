#include "sequencer/Recorder.h"

#include "support/SequenceTest.h"

#include <gmock/gmock.h>

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
    liveKeys_.press(64, 0.5F, 0.0);
    liveKeys_.take(64); // was held before, so it lengthens an existing note
    run(3.0);
    EXPECT_NEAR(transport_.position(), 5.5, 0.1);
    recorder_.record();
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(64, 0.0, 5.0), FieldsAre(60, 2.0, 0.0),
                                        FieldsAre(64, 50.0, 1.0)))
        << "sorted, and notes ahead are unchanged";
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

} // namespace velmora
