// Live keys: recorded, and practised.

#include "support/SequenceTest.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;

namespace {

class SequenceRecordingTest : public SequenceTest {
protected:
    void press(unsigned key) { liveKeys_.press(key, 0.5F, now_); }
    void release(unsigned key) { liveKeys_.release(key, now_); }

    /// So many steps, in ticks of 1/64 of one.
    void run(double steps)
    {
        for (double done = 0.0; done < steps; done += 1.0 / 64.0)
            tick(1.0 / 64.0);
    }

    /// Key, start and length of the notes, rounded to tenths.
    std::vector<std::tuple<unsigned, double, double>> recorded() const
    {
        std::vector<std::tuple<unsigned, double, double>> result;
        for (const Note& note : document_.sequence().notes())
            result.emplace_back(note.key, std::round(note.start * 10.0) / 10.0,
                                std::round(note.length * 10.0) / 10.0);
        return result;
    }

    int keyAfterInput(unsigned key)
    {
        practice_.midiInput();
        return practice_.stateOfNote(key);
    }
};

} // namespace

TEST_F(SequenceRecordingTest, RunsOnForEightStepsBehindTheLastKey)
{
    recorder_.setChannel(3);
    recorder_.record();
    transport_.play();
    EXPECT_EQ(transport_.mode(), Transport::Mode::Recording) << "no playing meanwhile";
    run(1.0);
    EXPECT_LT(transport_.position(), 0.1) << "waits for the first key";
    press(60);
    run(2.0);
    release(60);
    run(1.0);
    press(60);
    run(1.0);
    press(64); // the first stays as long as it was
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
    EXPECT_EQ(document_.undoStack().undoText(), "Record 3 Notes");
    document_.undoStack().undo();
    EXPECT_THAT(recorded(), IsEmpty());
    EXPECT_FALSE(document_.isModified());
}

TEST_F(SequenceRecordingTest, RunsOnGridOnlyWhileAKeyIsHeld)
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
    liveKeys_.take(64); // held from before: lengthens what is there
    run(3.0);
    EXPECT_NEAR(transport_.position(), 5.5, 0.1);
    recorder_.record();
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(64, 0.0, 5.0), FieldsAre(60, 2.0, 0.0),
                                        FieldsAre(64, 50.0, 1.0)))
        << "sorted; what lies ahead is as it was";
    document_.undoStack().undo();
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(64, 0.0, 1.0), FieldsAre(64, 50.0, 1.0)));
}

TEST_F(SequenceRecordingTest, TakesAKeyWhereItArrivedWhenTheTickIsLate)
{
    const double step = 1.0 / 15.0;
    recorder_.record();
    press(60);
    run(1.0);
    now_ += step;
    release(60);
    press(64);
    now_ += step;
    press(65); // comes and goes unseen
    now_ += step;
    release(65);
    tick(1.0);
    // A last one comes after the tick has read the clock.
    liveKeys_.press(67, 0.5F, now_ + 1.0);
    tick(0.01);
    EXPECT_THAT(recorded(), ElementsAre(FieldsAre(60, 0.0, 2.0), FieldsAre(64, 2.0, 3.0),
                                        FieldsAre(65, 3.0, 1.0)));
}

TEST_F(SequenceRecordingTest, GoesOnWhenTheWantedChordIsStruck)
{
    for (const unsigned key : {60U, 64U})
        add(key, 2.0, 1.0);
    add(60, 4.0, 1.0);
    add(67, 6.0, 1.0);
    practice_.advance();
    EXPECT_EQ(transport_.position(), 2.0) << "nothing is wanted at 0";
    EXPECT_EQ(practice_.stateOfNote(60), 2) << "wanted";

    press(61);
    EXPECT_EQ(keyAfterInput(61), 1) << "wrong";
    press(60);
    EXPECT_EQ(keyAfterInput(60), 3) << "right";
    press(64);
    EXPECT_EQ(keyAfterInput(64), 3);
    EXPECT_EQ(transport_.position(), 2.0) << "the wrong key is still down";
    release(61);
    EXPECT_EQ(keyAfterInput(64), 4) << "held and taken into account";
    EXPECT_EQ(transport_.position(), 4.0);
    EXPECT_EQ(keyAfterInput(60), 6) << "held from before: to be struck again";
    release(60);
    EXPECT_EQ(keyAfterInput(60), 2);
    EXPECT_EQ(transport_.position(), 4.0);
    press(60);
    EXPECT_EQ(keyAfterInput(67), 2) << "the next";
    press(67);
    EXPECT_EQ(keyAfterInput(67), 6) << "once more: nothing comes behind";
    EXPECT_EQ(transport_.position(), 6.0);

    transport_.selectInterval(2.0, 4.0);
    transport_.setPosition(2.0);
    transport_.setLoop(true);
    for (const unsigned key : {60U, 64U})
        press(key);
    EXPECT_EQ(keyAfterInput(60), 6);
    EXPECT_EQ(transport_.position(), 2.0) << "from the end of the interval to its beginning";

    transport_.selectInterval(2.0, 8.0);
    transport_.play();
    for (const unsigned key : {60U, 64U})
        press(key);
    practice_.midiInput();
    EXPECT_EQ(transport_.position(), 2.0) << "what plays goes its own way";
}

TEST_F(SequenceRecordingTest, WalksFromChordToChord)
{
    for (const double start : {1.0, 1.05, 3.0, 3.08, 5.0})
        add(60, start, 0.5);
    const auto reached = [&](void (Practice::*step)()) {
        (practice_.*step)();
        return std::pair(transport_.position(), transport_.cursor());
    };
    const auto next = &Practice::nextNote, previous = &Practice::prevNote;
    for (const auto& at : {std::pair(1.0, 0), {3.0, 2}, {5.0, 4}, {5.0, 4}})
        EXPECT_EQ(reached(next), at);
    EXPECT_EQ(reached(previous), std::pair(3.0, 2)) << "the first of the chord";
    EXPECT_EQ(reached(previous), std::pair(1.05, -1)) << "the last one that was found";
    transport_.setPosition(0.5);
    EXPECT_EQ(reached(previous), std::pair(0.5, -1)) << "nothing before";
    transport_.setLoop(true);
    transport_.setPosition(5.0);
    EXPECT_EQ(reached(next), std::pair(1.0, 0)) << "round";
    transport_.selectInterval(2.0, 5.0);
    transport_.setPosition(5.0);
    EXPECT_EQ(reached(next), std::pair(2.0, 2)) << "to the beginning of the interval";
}

} // namespace velmora
