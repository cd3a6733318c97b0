#include "support/SequenceTest.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::SizeIs;
using testing::UnorderedElementsAreArray;

namespace {

/// Records in the musical reading, where a second is 16 steps and a bar takes two seconds.
class RunningTakeTest : public SequenceTest {
protected:
    RunningTakeTest() { piece_.recorder().setChannel(2); }

    void click(Click click, double time) override
    {
        const char* const names[] = {"Bar", "beat", "part"};
        called(fmt::format("{} {:.3f}", names[static_cast<int>(click)],
                           time == 0.0 ? 0.0 : time - begun_));
    }
    void cancelClicks() override { called("cancel"); }

    void add(unsigned key, double start, double length, unsigned channel = 2)
    {
        piece_.edit()->addNote({.start = start,
                                .length = length,
                                .oldLength = length,
                                .velocity = 1.0F,
                                .channel = channel,
                                .key = key});
        piece_.updateExtent();
    }

    void start(MetronomeSettings metronome = {.whileRecording = true})
    {
        run_.setMetronome(metronome);
        begun_ = now_;
        piece_.recorder().record();
    }

    /// Moves the clock to a time since the start in seconds, in ticks as long as a busy main thread
    /// may take.
    void runTo(double seconds, double tick = 0.001)
    {
        while (now_ < begun_ + seconds - 1e-9) {
            now_ = std::min(now_ + tick, begun_ + seconds);
            run_.tick();
        }
    }

    /// Strikes a key for a time in seconds, of which the main thread learns later.
    void strike(unsigned key, double at, double length = 0.25)
    {
        liveKeys_.press(key, 0.5F, begun_ + at);
        liveKeys_.release(key, begun_ + at + length);
    }

    /// The key, start and length of each note, rounded to hundredths.
    std::vector<std::tuple<unsigned, double, double>> notes() const
    {
        std::vector<std::tuple<unsigned, double, double>> result;
        for (const Note& note : piece_.sequence().notes())
            result.emplace_back(note.key, std::round(note.start * 100.0) / 100.0,
                                std::round(note.length * 100.0) / 100.0);
        return result;
    }

    /// The step, rounded to hundredths, and the value of each controller.
    std::vector<std::pair<double, int>> moves() const
    {
        std::vector<std::pair<double, int>> result;
        for (const ControllerEvent& event : piece_.controllers())
            result.emplace_back(std::round(event.step * 100.0) / 100.0, event.value);
        return result;
    }

    SequenceDocument piece_{*this, Reading::Musical, [this] { return now_; }};
    Transport& run_ = piece_.transport();
    double begun_ = 0.0;
};

} // namespace

TEST_F(RunningTakeTest, CountsABarAndThenRuns)
{
    run_.setPosition(8.0);
    start({.whileRecording = true, .divides = true, .countIn = 1});
    EXPECT_THAT(calls_, ElementsAre("Bar 0.000", "part 0.250", "beat 0.500", "part 0.750",
                                    "beat 1.000", "part 1.250", "beat 1.500", "part 1.750"));
    EXPECT_EQ(run_.beatsToCount(), 4);
    calls_.clear();
    strike(60, 1.7); // too early to be meant
    strike(62, 1.9); // meant for the first beat
    strike(64, 2.1);
    runTo(1.6);
    EXPECT_EQ(run_.beatsToCount(), 1);
    EXPECT_EQ(run_.position(), 8.0);
    runTo(3.0, 0.5);
    EXPECT_EQ(run_.beatsToCount(), 0);
    EXPECT_NEAR(run_.position(), 24.0, 1e-6) << "it does not wait for keys";
    piece_.recorder().record();
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(62, 8.0, 2.4), FieldsAre(64, 9.6, 4.0)));
    EXPECT_THAT(calls_,
                ElementsAre("beat 0.000", "part 0.000", "beat 0.000", "part 0.000", "cancel"));

    start({.countIn = 2});
    runTo(3.9);
    piece_.recorder().record();
    EXPECT_EQ(run_.mode(), kStopped);
    EXPECT_THAT(notes(), SizeIs(2)) << "it was ended while it counted";
    EXPECT_EQ(piece_.undoStack().count(), 1);
}

TEST_F(RunningTakeTest, CountsAsTheBarsAtThePositionAre)
{
    MusicalTime time;
    time.setTimeSignatures({{0.0, 4, 4}, {32.0, 6, 8}});
    time.setTempos({Tempo::ofBeats(0.0, 120.0), Tempo::ofBeats(32.0, 60.0)});
    run_.setTime(time);
    run_.setPosition(44.0);
    start({.whileRecording = true, .divides = true, .countIn = 1});
    EXPECT_THAT(calls_, ElementsAre("Bar 0.000", "part 0.500", "part 1.000", "beat 1.500",
                                    "part 2.000", "part 2.500"));
    calls_.clear();
    runTo(6.1);
    EXPECT_THAT(calls_, ElementsAre("beat 0.000", "part 0.000", "part 0.000", "Bar 0.000",
                                    "part 0.000", "part 0.000", "beat 0.000"));
    piece_.recorder().record();
}

TEST_F(RunningTakeTest, PlaysThePieceAlongButNotTheTake)
{
    add(48, 4.0, 4.0);
    start({.countIn = 1});
    calls_.clear();
    strike(60, 2.25);
    runTo(2.4);
    piece_.practice().midiInput();
    EXPECT_EQ(piece_.practice().stateOfNote(48), kWanted) << "what it plays stays in sight";
    runTo(4.0);
    EXPECT_THAT(calls_, ElementsAre("play 48 1.00", "stop 48"));
    piece_.recorder().record();
    EXPECT_NEAR(run_.extent(), 64.0, 1e-6) << "the piece has become longer";
}

TEST_F(RunningTakeTest, ReplacesOnlyWhatIsBetweenTheEnds)
{
    add(50, 0.0, 20.0);     // reaches into the interval
    add(51, 16.0, 4.0);     // begins in it
    add(52, 28.0, 8.0);     // late in it
    add(53, 32.0, 4.0);     // behind it
    add(54, 16.0, 4.0, 3U); // another voice
    const auto before = notes();
    run_.selectInterval(16.0, 32.0);
    piece_.recorder().setPunches(true);
    start({});
    strike(60, 0.5); // before the interval, which begins after a second
    strike(61, 1.5);
    strike(62, 1.9, 1.0); // longer than the interval
    strike(63, 2.1);
    runTo(2.5, 0.5);
    EXPECT_EQ(run_.mode(), kStopped) << "it ends with the interval";
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(50, 0.0, 16.0), FieldsAre(54, 16.0, 4.0),
                                     FieldsAre(61, 24.0, 4.0), FieldsAre(62, 30.4, 1.6),
                                     FieldsAre(53, 32.0, 4.0)));
    piece_.undoStack().undo();
    EXPECT_THAT(notes(), UnorderedElementsAreArray(before));

    run_.setPosition(16.0);
    start({});
    strike(61, 0.25);
    runTo(0.5);
    piece_.recorder().record();
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(50, 0.0, 16.0), FieldsAre(54, 16.0, 4.0),
                                     FieldsAre(61, 20.0, 4.0), FieldsAre(52, 28.0, 8.0),
                                     FieldsAre(53, 32.0, 4.0)))
        << "what was not reached stays";
    piece_.undoStack().undo();
    run_.setPosition(0.0);
    start({});
    runTo(0.5);
    piece_.recorder().record();
    EXPECT_THAT(notes(), UnorderedElementsAreArray(before)) << "the interval was not reached";
    EXPECT_FALSE(piece_.undoStack().canUndo());
}

TEST_F(RunningTakeTest, KeepsATakeOfEachPassToChooseFrom)
{
    add(48, 0.0, 4.0);
    run_.selectInterval(16.0, 32.0); // a second
    run_.setLoop(true);
    start({});
    strike(60, 0.25);
    strike(61, 0.9); // across the turn
    // Nothing in the second pass.
    strike(62, 2.5);
    strike(63, 3.25);
    runTo(3.9, 0.65);
    piece_.recorder().record();
    const auto base = FieldsAre(48, 0.0, 4.0);
    EXPECT_THAT(notes(), ElementsAre(base, FieldsAre(63, 20.0, 4.0)));
    EXPECT_THAT(piece_.recorder().takes(), SizeIs(3));
    EXPECT_EQ(piece_.chosenTake(), 2U);

    piece_.chooseTake(0);
    EXPECT_THAT(notes(), ElementsAre(base, FieldsAre(60, 20.0, 4.0), FieldsAre(61, 30.4, 1.6)));
    piece_.chooseTake(1);
    EXPECT_THAT(notes(), ElementsAre(base, FieldsAre(62, 24.0, 4.0)));
    piece_.undoStack().undo();
    EXPECT_EQ(piece_.chosenTake(), 0U);
    piece_.undoStack().undo();
    piece_.undoStack().undo();
    EXPECT_THAT(notes(), ElementsAre(base)) << "the recording is undone";
    EXPECT_EQ(piece_.chosenTake(), std::nullopt);
    piece_.undoStack().redo();
    EXPECT_EQ(piece_.chosenTake(), 2U);
}

TEST_F(RunningTakeTest, RecordsTheWholeLoopAfterItBeganInTheMiddle)
{
    run_.selectInterval(16.0, 32.0); // a second
    run_.setLoop(true);
    run_.setPosition(24.0);
    start({});
    strike(60, 0.75); // in the second pass, at a quarter of the loop
    runTo(1.0);
    piece_.recorder().record();
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(60, 20.0, 4.0)));
}

TEST_F(RunningTakeTest, KeepsThePedalsOfEachPassOfALateMainThread)
{
    constexpr std::uint8_t kSustainPedal = 64;
    run_.selectInterval(16.0, 32.0); // a second
    run_.setLoop(true);
    run_.setPosition(16.0);
    start({.countIn = 1}); // of two seconds
    liveKeys_.control(kSustainPedal, 100, begun_ + 1.0);
    strike(60, 2.25);
    liveKeys_.control(kSustainPedal, 0, begun_ + 2.75);
    liveKeys_.control(kSustainPedal, 90, begun_ + 3.5);
    strike(61, 3.75);
    runTo(4.9, 0.7);
    piece_.recorder().record();
    EXPECT_THAT(moves(), ElementsAre(FieldsAre(24.0, 90), FieldsAre(32.0, 0)))
        << "it is let go at the end of the loop";
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(61, 28.0, 4.0)));

    piece_.chooseTake(0);
    EXPECT_THAT(moves(), ElementsAre(FieldsAre(16.0, 100), FieldsAre(28.0, 0)))
        << "it was down before the first step";
    piece_.undoStack().undo();
    EXPECT_THAT(piece_.controllers(), SizeIs(2));
    EXPECT_EQ(piece_.chosenTake(), 1U);
    piece_.undoStack().undo();
    EXPECT_THAT(piece_.controllers(), SizeIs(0));
    EXPECT_THAT(notes(), SizeIs(0));
}

TEST_F(RunningTakeTest, BringsBackThePedalsThatATakeReplaced)
{
    const Controllers before{{17.0, 2, midi::kSustain, 90},
                             {22.0, 2, midi::kSustain, 0},
                             {29.0, 2, midi::kSustain, 80},
                             {31.0, 2, midi::kSustain, 0}};
    piece_.setControllers(before, "");
    run_.selectInterval(16.0, 32.0); // a second
    run_.setLoop(true);
    run_.setPosition(16.0);
    start({});
    liveKeys_.control(midi::kSustain, 100, begun_ + 0.25);
    liveKeys_.control(midi::kSustain, 0, begun_ + 0.5);
    runTo(0.6);
    piece_.registerTake(); // as an edit during the recording does
    liveKeys_.control(midi::kSustain, 110, begun_ + 1.75);
    liveKeys_.control(midi::kSustain, 0, begun_ + 1.9);
    runTo(1.95);
    piece_.recorder().record();
    const auto second = ElementsAre(FieldsAre(17.0, 90), FieldsAre(22.0, 0), FieldsAre(28.0, 110),
                                    FieldsAre(30.4, 0), FieldsAre(31.0, 0));
    EXPECT_THAT(moves(), second);
    piece_.chooseTake(0);
    EXPECT_THAT(moves(), ElementsAre(FieldsAre(17.0, 90), FieldsAre(20.0, 100), FieldsAre(24.0, 0),
                                     FieldsAre(29.0, 80), FieldsAre(31.0, 0)));
    piece_.chooseTake(1);
    EXPECT_THAT(moves(), second);
    while (piece_.undoStack().canUndo() && piece_.controllers() != before)
        piece_.undoStack().undo();
    EXPECT_EQ(piece_.controllers(), before);
}

TEST_F(RunningTakeTest, SilencesTheNotesOfAPassBeforeItRemovesThem)
{
    run_.selectInterval(0.0, 16.0); // a second
    run_.setLoop(true);
    start({});
    strike(60, 0.0);
    runTo(0.5);
    add(50, 8.5, 1.0, 3); // an edit, so that playing knows the new note
    runTo(1.5);           // past the turn, at which the note begins again
    const auto ofTake = [](const std::string& call) { return call.find("60") != call.npos; };
    std::erase_if(calls_, std::not_fn(ofTake));
    ASSERT_FALSE(calls_.empty());
    EXPECT_EQ(calls_.back(), "stop 60");
}

} // namespace velmora
