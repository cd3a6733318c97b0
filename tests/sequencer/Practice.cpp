#include "sequencer/Practice.h"

#include "support/SequenceTest.h"

namespace velmora {

namespace {

class PracticeTest : public SequenceTest {
protected:
    int keyAfterInput(unsigned key)
    {
        practice_.midiInput();
        return practice_.stateOfNote(key);
    }
};

} // namespace

TEST_F(PracticeTest, IsDoneAfterTheLastChord)
{
    add(60, 2.0, 1.0);
    add(62, 4.0, 1.0);
    practice_.advance();
    const auto strike = [&](unsigned key) {
        press(key);
        practice_.midiInput();
        release(key);
        practice_.midiInput();
        return practice_.isDone();
    };
    EXPECT_FALSE(strike(60));
    EXPECT_FALSE(strike(64)) << "wrong";
    EXPECT_TRUE(strike(62));
    add(64, 6.0, 1.0);
    EXPECT_FALSE(practice_.isDone()) << "there is more to play";
    practice_.nextNote();
    EXPECT_TRUE(strike(64));
    practice_.prevNote();
    EXPECT_FALSE(practice_.isDone());
    practice_.nextNote();
    transport_.setLoop(true);
    EXPECT_FALSE(strike(64)) << "it begins again";
}

TEST_F(PracticeTest, AdvancesWhenTheWantedChordIsStruck)
{
    for (const unsigned key : {60U, 64U})
        add(key, 2.0, 1.0);
    add(60, 4.0, 1.0);
    add(67, 6.0, 1.0);
    practice_.advance();
    EXPECT_EQ(transport_.position(), 2.0) << "there is no chord at 0";
    EXPECT_EQ(practice_.stateOfNote(60), kWanted) << "wanted";

    press(61);
    EXPECT_EQ(keyAfterInput(61), kPressed) << "wrong";
    press(60);
    EXPECT_EQ(keyAfterInput(60), kPressed | kWanted) << "right";
    press(64);
    EXPECT_EQ(keyAfterInput(64), kPressed | kWanted);
    EXPECT_EQ(transport_.position(), 2.0) << "the wrong key is still down";
    release(61);
    EXPECT_EQ(keyAfterInput(64), kHeld) << "held and answered";
    EXPECT_EQ(transport_.position(), 4.0);
    EXPECT_EQ(keyAfterInput(60), kWanted | kHeld) << "held before, so it must be struck again";
    release(60);
    EXPECT_EQ(keyAfterInput(60), kWanted);
    EXPECT_EQ(transport_.position(), 4.0);
    press(60);
    EXPECT_EQ(keyAfterInput(67), kWanted) << "the next chord";
    press(67);
    EXPECT_EQ(keyAfterInput(67), kWanted | kHeld) << "the same chord again, because it is the last";
    EXPECT_EQ(transport_.position(), 6.0);

    transport_.selectInterval(2.0, 4.0);
    transport_.setPosition(2.0);
    transport_.setLoop(true);
    for (const unsigned key : {60U, 64U})
        press(key);
    EXPECT_EQ(keyAfterInput(60), kWanted | kHeld);
    EXPECT_EQ(transport_.position(), 2.0) << "from the end of the interval to its start";

    transport_.selectInterval(2.0, 8.0);
    transport_.play();
    for (const unsigned key : {60U, 64U})
        press(key);
    practice_.midiInput();
    EXPECT_EQ(transport_.position(), 2.0) << "practice does not move what plays";
}

TEST_F(PracticeTest, WalksFromChordToChord)
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
    EXPECT_EQ(reached(previous), std::pair(1.05, -1))
        << "before the first chord, at the last of its notes";
    transport_.setPosition(0.5);
    EXPECT_EQ(reached(previous), std::pair(0.5, -1)) << "there is no earlier chord";
    transport_.setLoop(true);
    transport_.setPosition(5.0);
    EXPECT_EQ(reached(next), std::pair(1.0, 0)) << "back to the first chord";
    transport_.selectInterval(2.0, 5.0);
    transport_.setPosition(5.0);
    EXPECT_EQ(reached(next), std::pair(2.0, 2)) << "back to the start of the interval";
}

} // namespace velmora
