#include "sequencer/AheadPlayer.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

#include <thread>

namespace velmora {

namespace {

class AheadPlayerTest : public SequenceTest {
protected:
    /// Both documents play a scale of two octaves in 1.6 seconds.
    AheadPlayerTest()
    {
        for (unsigned i = 0; i < 24; ++i) {
            add(48 + i, i, 0.75);
            live_.edit()->addNote(document_.sequence().notes().back());
        }
        live_.updateExtent();
    }

    /// Runs the event loop, which is blocked most of the time.
    void runFor(std::chrono::milliseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(60));
        }
    }

    void click(Click /*click*/, double time) override
    {
        const std::lock_guard lock(lock_);
        clicks_.push_back(time);
    }

    std::vector<double> clicks_;
    SequenceDocument live_{*this, Reading::Plain, getTime};
    SequenceClock clock_{live_.transport()};
};

TEST_F(AheadPlayerTest, SoundsEachNoteOnceAndOnTime)
{
    std::vector<double> late;
    onPlay_ = [&] { late.push_back(getTime()); };
    live_.transport().play();
    const double started = getTime();
    runFor(std::chrono::milliseconds(1000));
    live_.transport().setSpeed(2.0); // cancels the plan for the slower tempo
    runFor(std::chrono::milliseconds(600));
    const Calls calls = std::exchange(calls_, {});
    onPlay_ = nullptr;

    transport_.play();
    for (int i = 0; i < 25 * 64; ++i)
        tick(1.0 / 64.0);
    EXPECT_EQ(calls, calls_);
    ASSERT_EQ(late.size(), 24);
    for (std::size_t i = 0; i < 14; ++i)
        late[i] -= started + static_cast<double>(i) / 15.0;
    std::sort(late.begin(), late.begin() + 14);
    EXPECT_LT(late[7], 0.015) << "the median, because the machine may be busy";

    live_.transport().play();
    int frames = 0;
    QObject::connect(&live_.transport(), &Transport::frame, [&] { ++frames; });
    runFor(std::chrono::milliseconds(100));
    EXPECT_EQ(frames, 0) << "the clock has stopped";
}

TEST_F(AheadPlayerTest, ClicksAtTheTimesOfTheNotes)
{
    SequenceDocument piece(*this, Reading::Musical, getTime);
    for (const Note& note : document_.sequence().notes())
        piece.edit()->addNote(note);
    piece.updateExtent();
    std::vector<double> notes;
    onPlay_ = [&] { notes.push_back(playTime_); };
    piece.transport().setMetronome({.whilePlaying = true, .divides = true});
    for (const bool loops : {false, true}) {
        SCOPED_TRACE(loops);
        notes.clear();
        clicks_.clear();
        piece.transport().setLoop(loops);
        piece.transport().selectInterval(0.0, loops ? 8.0 : 0.0);
        piece.transport().setPosition(0.0);
        const SequenceClock clock(piece.transport());
        piece.transport().play();
        runFor(std::chrono::milliseconds(1200));
        piece.transport().play();
        ASSERT_GE(clicks_.size(), 4U);
        for (std::size_t i = 0; i < clicks_.size() && 4 * i < notes.size(); ++i)
            EXPECT_NEAR(clicks_[i], notes[4 * i], 1e-5) << i;
    }
}

TEST_F(AheadPlayerTest, EndsEverySoundingNoteWhenStoppedOrEdited)
{
    int heard = 0;
    for (int i = 0; i < 20; ++i) {
        calls_.clear();
        live_.transport().setPosition(0.0);
        live_.transport().play();
        runFor(std::chrono::milliseconds(100));
        std::this_thread::sleep_for(std::chrono::milliseconds(7 * i));
        if (i % 2 == 0)
            SequenceEditor(live_).mouseDown({20.0, 30.0}, Qt::NoModifier);
        else
            live_.transport().play();
        std::map<std::string, bool> sounding;
        for (const std::string& call : calls_)
            if (call.starts_with("play") || call.starts_with("stop"))
                sounding[call.substr(5, 2)] = call.starts_with("play");
        heard += sounding.empty() ? 0 : 1;
        for (const auto& [key, sounds] : sounding)
            EXPECT_FALSE(sounds) << key << " after round " << i;
        if (live_.transport().mode() != kStopped)
            live_.transport().play();
        QCoreApplication::processEvents();
    }
    EXPECT_GT(heard, 10) << "rounds with sound, even on a busy machine";
}

TEST_F(AheadPlayerTest, WaitsForAChordOfThePractice)
{
    SequenceDocument piece(*this, Reading::Musical, getTime);
    const SequenceClock clock(piece.transport());
    piece.edit()->addNote({.length = 1.0, .velocity = 1.0F, .key = 48});
    piece.edit()->addNote({.start = 4.0, .length = 1.0, .velocity = 1.0F, .channel = 1, .key = 72});
    for (unsigned i = 0; i < 5; ++i) // the first one stands with the chord
        piece.edit()->addNote(
            {.start = 4.0 + 4.0 * i, .length = 1.0, .velocity = 1.0F, .key = 49 + i});
    piece.edit()->sort();
    piece.updateExtent();
    std::vector<std::pair<int, double>> played;
    onPlay_ = [&] { played.emplace_back(playKey_, playTime_); };
    PracticeOptions options;
    options.part.channels = 0b10;
    ASSERT_TRUE(piece.practiceSession().start(options));
    runFor(std::chrono::milliseconds(700));
    ASSERT_EQ(played.size(), 1U) << "nothing of the plan sounds while it waits";
    EXPECT_EQ(played[0].first, 48);

    const double answered = getTime();
    liveKeys_.press(72, 0.5F, answered);
    runFor(std::chrono::milliseconds(1300));
    piece.practiceSession().stop();
    onPlay_ = nullptr;
    ASSERT_EQ(played.size(), 6U) << "each note once";
    int planned = 0;
    for (const auto& [key, time] : played)
        if (key > 49 && time > 0.0) { // the main thread may have been too busy to plan it
            EXPECT_NEAR(time - answered, (key - 49) * 0.25, 0.002) << key;
            ++planned;
        }
    EXPECT_GT(planned, 0);
}

TEST_F(AheadPlayerTest, LoopsWithoutAGapWhileTheMainThreadIsBusy)
{
    SequenceDocument musical(*this, Reading::Musical, getTime);
    const SequenceClock clock(musical.transport());
    musical.edit()->addNote({.length = 1.0, .velocity = 1.0F, .key = 60});
    musical.edit()->addNote({.start = 2.0, .length = 9.0, .velocity = 1.0F, .key = 64});
    musical.edit()->addNote({.start = 2.0, .length = 1.0, .velocity = 1.0F, .key = 67});
    musical.edit()->sort();
    musical.updateExtent();
    MusicalTime time;
    time.setTempos({Tempo::ofBeats(2.0, 240.0)});
    musical.setTime(time, {});
    musical.transport().selectInterval(0.0, 4.0);
    constexpr double kPass = 2.0 / 16.0 + 2.0 / 32.0; // in seconds
    musical.transport().setLoop(true);
    musical.transport().playback().leaveOut(PracticePart{.lowestKey = 65}); // for the user
    std::vector<double> times;
    onPlay_ = [&] {
        if (playTime_ > 0.0 && playKey_ == 60)
            times.push_back(playTime_);
    };
    musical.transport().play();
    runFor(std::chrono::milliseconds(1700));
    musical.transport().play();
    onPlay_ = nullptr;
    ASSERT_GE(times.size(), 5U);
    const double passes = std::round((times.back() - times.front()) / kPass);
    EXPECT_NEAR(times.back() - times.front(), passes * kPass, 0.0005);
    Calls pass; // a note that lasts beyond the end of the loop ends with it
    for (const std::string& call : calls_)
        if (call.ends_with("64") || call.starts_with("play"))
            pass.push_back(call.substr(0, 7));
    EXPECT_EQ(Calls(pass.begin(), pass.begin() + 4),
              (Calls{"play 60", "play 64", "stop 64", "play 60"}));
}

TEST_F(AheadPlayerTest, EndsThePassOfALoopThatItIsTooLateFor)
{
    double now = getTime(); // runs ahead of the player's time
    SequenceDocument musical(*this, Reading::Musical, [&] { return now; });
    musical.edit()->addNote({.start = 6.5, .length = 0.5, .velocity = 1.0F, .key = 64});
    musical.updateExtent();
    AheadPlayer player(*this);
    Transport& transport = musical.transport();
    transport.playback().playAhead(&player);
    transport.selectInterval(0.0, 8.0); // half a second
    transport.setLoop(true);
    transport.setPosition(6.5);
    transport.play();
    for (const double seconds : {0.001, 0.1}) {
        now += seconds;
        transport.tick();
    }
    EXPECT_LT(transport.position(), 1.0) << "in the next pass";
    transport.stop();
    EXPECT_EQ(calls_, (Calls{"play 64 1.00", "stop 64"}));
    transport.playback().playAhead(nullptr);
}

TEST_F(AheadPlayerTest, EndsANoteThatARecordingHasShortened)
{
    SequenceDocument musical(*this, Reading::Musical, getTime);
    AheadPlayer player(*this);
    Transport& transport = musical.transport();
    transport.playback().playAhead(&player);
    transport.setMetronome({.whileRecording = true});
    transport.setSpeed(20.0); // the shortest note lies within a tick
    const auto run = [&](double seconds) {
        for (const double end = getTime() + seconds; getTime() < end;) {
            transport.tick();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    };
    musical.recorder().record();
    run(0.02);
    liveKeys_.press(60, 0.5F, getTime());
    run(0.1);
    musical.edit()->select();
    transport.setPosition(0.0); // the note is planned, but the key is still held
    run(0.06);
    transport.stop();
    EXPECT_THAT(calls_, testing::Contains("play 60 0.50"));
    EXPECT_EQ(calls_.back(), "stop 60");
    transport.playback().playAhead(nullptr);
}

} // namespace

} // namespace velmora
