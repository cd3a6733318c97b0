#include "sequencer/PracticeSession.h"

#include "support/SequenceTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

using testing::ElementsAre;

/// A piece at 120 beats a minute, so that a second is 16 steps. The user plays channel 1.
class PracticeSessionTest : public SequenceTest {
protected:
    void addNote(unsigned key, double start, unsigned channel)
    {
        piece_.edit()->addNote(
            {.start = start, .length = 2.0, .velocity = 1.0F, .channel = channel, .key = key});
        piece_.updateExtent();
    }

    void start(const PracticeOptions& options)
    {
        ASSERT_TRUE(session_.start(options));
        calls_.clear();
    }

    static PracticeOptions ofMelody()
    {
        PracticeOptions options;
        options.part.channels = 0b10;
        return options;
    }

    /// Lets time pass as the timer does.
    void pass(double seconds)
    {
        const double until = now_ + seconds;
        for (; now_ < until; now_ += 1.0 / 1024)
            piece_.transport().tick();
        now_ = until;
        piece_.transport().tick();
    }

    void strike(unsigned key)
    {
        press(key);
        piece_.transport().tick();
        release(key);
        piece_.transport().tick();
    }

    double position() { return piece_.transport().position(); }

    std::vector<double> delays() const
    {
        std::vector<double> milliseconds;
        for (const PracticeStroke& stroke : session_.result().strokes)
            milliseconds.push_back(std::round(stroke.delay * 1e4) / 10);
        return milliseconds;
    }

    SequenceDocument piece_{*this, Reading::Musical, [this] { return now_; }};
    PracticeSession& session_ = piece_.practiceSession();
};

} // namespace

TEST_F(PracticeSessionTest, WaitsForThePartWhileTheOthersPlay)
{
    for (const double step : {0.0, 16.0, 18.0})
        addNote(48, step, 0);
    addNote(72, 16.0, 1);
    addNote(76, 16.2, 1);
    start(ofMelody());
    pass(0.5);
    EXPECT_THAT(calls_, ElementsAre("play 48 1.00", "stop 48"));
    pass(2.0);
    EXPECT_EQ(position(), 16.0);
    EXPECT_THAT(calls_, ElementsAre("play 48 1.00", "stop 48")) << "the bass waits, too";
    EXPECT_EQ(piece_.practice().stateOfNote(72), kWanted);
    EXPECT_EQ(piece_.practice().stateOfNote(48), 0) << "the user does not play it";

    press(71);
    press(72);
    pass(0.1);
    EXPECT_EQ(piece_.practice().stateOfNote(71), kPressed) << "wrong";
    EXPECT_EQ(piece_.practice().stateOfNote(72), kWanted | kPressed) << "right, all the same";
    EXPECT_EQ(position(), 16.0) << "the chord is rolled";
    press(76);
    pass(0.2);
    EXPECT_GT(position(), 19.0);
    EXPECT_THAT(calls_,
                ElementsAre("play 48 1.00", "stop 48", "play 48 1.00", "stop 48", "play 48 1.00"))
        << "only the user plays the part";
    pass(1.0);
    EXPECT_FALSE(session_.isRunning()) << "the piece has ended";
    EXPECT_EQ(session_.result().wrong.size(), 1U);
    EXPECT_EQ(session_.result().passes, 1);
    EXPECT_EQ(session_.result().cleanPasses, 0);

    calls_.clear();
    piece_.transport().setPosition(15.0);
    piece_.transport().play();
    pass(0.5);
    EXPECT_THAT(calls_, testing::Contains("play 72 1.00")) << "it plays everything again";
}

TEST_F(PracticeSessionTest, JudgesKeysByTheirMoment)
{
    for (const double step : {16.0, 32.0, 48.0, 64.0})
        addNote(72, step, 1);
    start(ofMelody());
    pass(0.7);
    strike(72);
    EXPECT_EQ(session_.result().wrong.size(), 1U) << "300 ms early";
    pass(0.2);
    strike(72);
    pass(1.15);
    strike(72);
    EXPECT_THAT(delays(), ElementsAre(-100.0, 50.0)) << "an early key does not move the piece";

    // The main thread stands still while the user plays the rest.
    const double late = now_;
    now_ = late + 1.02;
    press(72);
    now_ = late + 1.03;
    release(72);
    now_ = late + 2.01;
    press(72);
    now_ = late + 3.0;
    piece_.transport().tick();
    EXPECT_THAT(delays(), ElementsAre(-100.0, 50.0, 20.0, -10.0));
    EXPECT_EQ(session_.result().wrong.size(), 1U);
}

TEST_F(PracticeSessionTest, BeginsWithTheFirstKey)
{
    addNote(72, 0.0, 1);
    addNote(72, 16.0, 1);
    start(ofMelody());
    pass(3.0);
    strike(72);
    pass(1.05);
    strike(72);
    pass(1.0);
    EXPECT_THAT(delays(), ElementsAre(0.0, testing::DoubleNear(50.0, 2.0)));
    EXPECT_EQ(session_.result().cleanPasses, 1);
}

TEST_F(PracticeSessionTest, GoesOnWithoutTheKeysThatAreMissed)
{
    using Place = std::pair<unsigned, double>;
    for (const auto& [key, step] :
         {Place{72, 0.0}, {72, 8.0}, {76, 8.0}, {72, 16.0}, {72, 18.0}, {79, 18.0}, {72, 28.0}})
        addNote(key, step, 1);
    piece_.transport().selectInterval(0.0, 30.0);
    PracticeOptions options = ofMelody();
    options.waits = false;
    start(options);
    pass(1.0);
    EXPECT_EQ(position(), 0.0) << "it begins with the first key";
    strike(72);
    pass(0.45);
    strike(72);
    pass(0.5);
    EXPECT_EQ(session_.result().missed.size(), 1U) << "76 at 8; there is still time for 72 at 16";
    pass(0.12);
    strike(79);
    EXPECT_THAT(delays(),
                ElementsAre(0.0, testing::DoubleNear(-50.0, 2.0), testing::DoubleNear(-53.0, 2.0)))
        << "nearer to the chord at 18";
    pass(1.0);
    EXPECT_FALSE(session_.isRunning()) << "the interval has ended";
    std::vector<double> missed;
    for (const PracticeMistake& mistake : session_.result().missed)
        missed.push_back(mistake.step);
    EXPECT_THAT(missed, ElementsAre(8.0, 16.0, 18.0, 28.0)) << "the last one was just due";
    EXPECT_TRUE(session_.result().wrong.empty());
    EXPECT_EQ(session_.result().passes, 1);
    EXPECT_EQ(session_.result().cleanPasses, 0);
}

TEST_F(PracticeSessionTest, MissesKeysInEveryPassOfALoop)
{
    addNote(72, 4.0, 1);
    addNote(74, 15.0, 1);
    piece_.transport().selectInterval(0.0, 16.0);
    piece_.transport().setLoop(true);
    PracticeOptions options = ofMelody();
    options.waits = false;
    start(options);
    pass(1.1);
    EXPECT_EQ(session_.result().missed.size(), 2U) << "the loop ends before the time for 74 does";
    pass(0.2);
    strike(72);
    pass(0.65);
    strike(74);
    pass(0.2);
    EXPECT_EQ(session_.result().strokes.size(), 2U);
    EXPECT_EQ(session_.result().missed.size(), 2U);
    EXPECT_EQ(session_.result().passes, 2);
    EXPECT_EQ(session_.result().cleanPasses, 1);
    session_.stop();
    EXPECT_EQ(session_.result().missed.size(), 2U) << "nobody has missed what was still to come";
}

TEST_F(PracticeSessionTest, ChangesTheSpeedAfterEveryPass)
{
    addNote(72, 4.0, 1);
    addNote(72, 20.0, 1);
    piece_.transport().selectInterval(0.0, 16.0);
    piece_.transport().setLoop(true);
    piece_.transport().setSpeed(0.9);
    PracticeOptions options = ofMelody();
    options.speedStep = 0.07;
    options.slowsDown = true;
    start(options);
    const auto speedAfter = [&](bool isClean) {
        pass(0.3);
        if (!isClean)
            strike(60);
        strike(72);
        pass(0.95);
        EXPECT_EQ(session_.stateOfNote(72), kWanted) << "in the next pass";
        return piece_.transport().speed();
    };
    EXPECT_DOUBLE_EQ(speedAfter(true), 0.97);
    EXPECT_DOUBLE_EQ(speedAfter(false), 0.9);
    EXPECT_DOUBLE_EQ(speedAfter(true), 0.97);
    EXPECT_DOUBLE_EQ(speedAfter(true), 1.0) << "as written at most";
    EXPECT_EQ(session_.result().passes, 4);
    EXPECT_EQ(session_.result().cleanPasses, 3);
    session_.stop();
    EXPECT_EQ(piece_.transport().mode(), kStopped);
}

TEST_F(PracticeSessionTest, FollowsEditsAndJumps)
{
    addNote(48, 60.0, 0);
    addNote(72, 16.0, 1);
    addNote(74, 32.0, 1);
    PracticeOptions options = ofMelody();
    options.part.highestKey = 71;
    EXPECT_FALSE(session_.start(options)) << "no note is in reach";
    start(ofMelody());
    pass(1.5);
    EXPECT_EQ(position(), 16.0);
    piece_.transport().setPosition(20.0);
    pass(0.1);
    EXPECT_GT(position(), 21.0);
    EXPECT_EQ(session_.stateOfNote(74), kWanted);
    const auto& notes = piece_.sequence().notes();
    piece_.edit()->erase(std::ranges::find(notes, 74U, &Note::key)->id);
    pass(0.8);
    EXPECT_GT(position(), 33.0) << "the note is gone";
}

} // namespace velmora
