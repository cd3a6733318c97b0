#include "sequencer/MusicalTime.h"

#include "base/FormatError.h"
#include "midi/MidiFileEvents.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/SourceFile.h"
#include "sequencer/TapTempo.h"
#include "sequencer/timeEntries.h"
#include "support/MidiBytes.h"
#include "support/SequenceTest.h"

#include <gmock/gmock.h>

#include <numeric>
#include <span>

namespace velmora {

namespace {

using midi::bytes;
using testing::ElementsAre;

MusicalTime timeOf(const std::string& file)
{
    return musicalTimeOf(readMidiFileEvents(std::as_bytes(std::span(file))));
}

std::string signature(std::size_t delta, int count, int exponent)
{
    return midi::quantity(delta) + bytes({0xFF, 0x58, 4, count, exponent, 24, 8});
}

std::vector<double> stepsOf(const std::vector<GridLine>& lines)
{
    std::vector<double> steps;
    for (const GridLine& line : lines)
        steps.push_back(line.step);
    return steps;
}

} // namespace

TEST(MusicalTime, KeepsTheTimesOfAFileWithTempoChanges)
{
    const std::string file =
        midi::file(midi::tempo(0, 600'000) + midi::on(0, 60) + midi::off(96, 60) +
                   midi::tempo(31, 300'000) + midi::on(65, 62) + midi::off(200, 62) +
                   midi::tempo(0, 1'234'567) + midi::on(17, 64) + midi::off(500, 64));
    const MidiFileEvents events = readMidiFileEvents(std::as_bytes(std::span(file)));
    const auto view = std::as_bytes(std::span(file));
    Sequence sequence;
    const SourceFile source({view.begin(), view.end()}, sequence);
    const MusicalTime& time = source.time();
    ASSERT_EQ(sequence.notes().size(), 3U);
    const std::array<std::pair<int, int>, 3> ticks{{{0, 96}, {192, 392}, {409, 909}}};
    for (const double speed : {1.0, 0.5, 3.7}) {
        const Pace pace(time, speed);
        for (std::size_t i = 0; i < ticks.size(); ++i) {
            const Note& note = sequence.notes()[i];
            for (const auto& [step, tick] : {std::pair(note.start, ticks[i].first),
                                             {note.start + note.length, ticks[i].second}}) {
                const double seconds = events.tempoMap.secondsForBeats(tick / 96.0);
                EXPECT_NEAR(time.secondsAt(step), seconds, 1e-9);
                EXPECT_NEAR(time.stepAt(seconds), step, 1e-9);
                EXPECT_NEAR(pace.secondsBetween(0.0, step), seconds / speed, 1e-9);
                EXPECT_NEAR(pace.stepAfter(0.0, seconds / speed), step, 1e-9);
                EXPECT_NEAR(pace.stepAfter(step, -seconds / speed), 0.0, 1e-9);
            }
        }
    }
    EXPECT_EQ(timeOf(midi::header(0, 1, 0xE728) + midi::track(midi::tempo(0, 1'000'000))),
              MusicalTime())
        << "frames have no tempo";
}

TEST(MusicalTime, CountsBarsThroughSignatures)
{
    // Two bars of 3/4, a bar and a half of 4/4, then 6/8.
    const MusicalTime time = timeOf(midi::file(signature(0, 3, 2) + signature(2 * 288, 4, 2) +
                                               signature(576, 6, 3) + midi::tempo(9, 1)));
    const auto numberAt = [&](double step) { return time.barAt(step).number; };
    EXPECT_EQ(numberAt(0.0), 1);
    EXPECT_EQ(numberAt(47.9), 2);
    EXPECT_EQ(numberAt(48.0), 3);
    EXPECT_EQ(numberAt(95.0), 4);
    EXPECT_EQ(time.barAt(95.0).length, 16.0) << "cut by the next signature";
    EXPECT_EQ(numberAt(96.0 + 24.0), 6);
    EXPECT_EQ(numberAt(-1.0), 0);
    EXPECT_GT(numberAt(1e18), 0) << "as damaged files have";
    EXPECT_THAT(stepsOf(time.gridLines(24.0, 144.0, Grid::Bars)),
                ElementsAre(24.0, 48.0, 80.0, 96.0, 120.0));
    EXPECT_THAT(stepsOf(time.gridLines(70.0, 121.0, Grid::Beats)),
                ElementsAre(72.0, 80.0, 88.0, 96.0, 108.0, 120.0))
        << "6/8 has two beats";
    EXPECT_THAT(stepsOf(time.gridLines(96.0, 109.0, Grid::Eighths)),
                ElementsAre(96.0, 100.0, 104.0, 108.0));
    EXPECT_EQ(time.gridAt(107.9, Grid::Beats), 96.0);
    EXPECT_EQ(time.gridAt(107.9, Grid::Sixteenths), 106.0);
    EXPECT_EQ(time.gridAt(103.0, Grid::Bars), 96.0);

    for (const Grid grid : {Grid::Bars, Grid::Beats, Grid::Sixteenths, Grid::SixtyFourths}) {
        const auto lines = stepsOf(time.gridLines(40.0, 130.0, grid));
        for (std::size_t i = 1; i < lines.size(); ++i) {
            EXPECT_EQ(time.gridAfter(lines[i - 1], grid), lines[i]);
            EXPECT_EQ(time.gridAt(lines[i] - 0.1, grid), lines[i - 1]);
        }
    }
    EXPECT_EQ(visibleGrid(8.0), Grid::ThirtySeconds) << "of the roll's usual height";
    EXPECT_EQ(visibleGrid(1.0), Grid::Beats);

    const auto pickUp = [](int first, int second) {
        MusicalTime piece;
        piece.setTimeSignatures({{0.0, first, 4}, {8.0 * first, second, 4}});
        return piece.barAt(8.0 * first).number;
    };
    EXPECT_EQ(pickUp(1, 4), 1) << "after a pick-up bar";
    EXPECT_EQ(pickUp(4, 3), 2);
}

class MusicalTimeTest : public SequenceTest {
protected:
    SequenceDocument musical_{*this, Reading::Musical, [this] { return now_; }};
};

TEST_F(MusicalTimeTest, IsEditedAndUndone)
{
    MusicalTime time;
    time.setTempos(
        {Tempo::ofBeats(16.0, 60.0), Tempo::ofBeats(0.0, 90.0), Tempo::ofBeats(16.0, 240.0)});
    EXPECT_EQ(time.tempos().size(), 2U) << "the last one of a step counts";
    musical_.setTime(time, "first");
    MusicalTime changed = time;
    changed.changeTempoAt(17.0, 30.0);
    EXPECT_NEAR(changed.tempoAt(15.9), 90.0, 1e-4);
    EXPECT_NEAR(changed.tempoAt(16.0), 30.0, 1e-4);
    musical_.setTime(changed, "second");
    EXPECT_EQ(musical_.undoStack().count(), 2);
    musical_.setTime(changed, "the same");
    EXPECT_EQ(musical_.undoStack().count(), 2);
    musical_.undoStack().undo();
    EXPECT_EQ(musical_.time(), time);
    musical_.undoStack().undo();
    EXPECT_EQ(musical_.time(), MusicalTime());
    musical_.undoStack().redo();
    EXPECT_EQ(musical_.time(), time);

    // A note at step 24 of two beats at 90 and one at 240 beats a minute, played at half speed.
    musical_.edit()->addNote({.start = 24.0, .length = 1.0, .velocity = 1.0F, .key = 60});
    musical_.updateExtent();
    musical_.transport().setSpeed(0.5);
    musical_.transport().play();
    const double onset = 2.0 * (2 * 60.0 / 90.0 + 60.0 / 240.0);
    now_ += onset - 1e-3;
    musical_.transport().tick();
    EXPECT_TRUE(calls_.empty());
    now_ += 2e-3;
    musical_.transport().tick();
    EXPECT_EQ(calls_, (Calls{"play 60 1.00"}));
}

TEST(TimeEntries, AreReplacedAndRemovedByTheirKind)
{
    const Tempo tempo = Tempo::ofBeats(8.0, 60.0);
    const Marker one{8.0, "A"}, other{8.0, "B"};
    MusicalTime time;
    for (const TimeEntry& entry :
         {TimeEntry(Tempo::ofBeats(8.0, 50.0)), TimeEntry(other), TimeEntry(one), TimeEntry(tempo),
          TimeEntry(KeySignature{2.0, 1, true})})
        time = with(time, entry);
    EXPECT_EQ(entriesOf(time),
              (std::vector<TimeEntry>{KeySignature{2.0, 1, true}, tempo, one, other}));
    EXPECT_EQ(entriesOf(without(time, other)),
              (std::vector<TimeEntry>{KeySignature{2.0, 1, true}, tempo, one}));

    time.setTimeSignatures({{0.0, 1, 4}, {8.0, 4, 4}, {72.0, 6, 8}});
    for (const double step : {0.0, 8.0, 40.0, 72.0, 96.0})
        EXPECT_EQ(time.startOfBar(time.barAt(step + 1.0).number), step);
    EXPECT_EQ(time.startOfBar(-5), 0.0);
}

TEST(TapTempo, IsTheMedianOfTheLastTaps)
{
    TapTempo taps;
    EXPECT_EQ(taps.tap(10.0), std::nullopt);
    EXPECT_DOUBLE_EQ(taps.tap(10.5).value(), 120.0);
    EXPECT_DOUBLE_EQ(taps.tap(11.5).value(), 80.0);
    EXPECT_DOUBLE_EQ(taps.tap(12.0).value(), 120.0) << "one beat was missed";
    EXPECT_EQ(taps.tap(14.5), std::nullopt) << "after a pause";
    EXPECT_DOUBLE_EQ(taps.tap(15.5).value(), 60.0);
    double time = 15.5;
    for (int i = 0; i < 8; ++i)
        taps.tap(time += 0.4);
    EXPECT_NEAR(taps.tap(time + 0.4).value(), 150.0, 1e-9) << "of the last eight";
}

TEST_F(MusicalTimeTest, SnapsToTheGridThatIsShown)
{
    SequenceEditor editor(musical_);
    MusicalTime time;
    time.setTimeSignatures({{0.0, 6, 8}});
    musical_.setTime(time, {});
    musical_.recorder().setSnapToGrid(true);
    const auto starts = [&] {
        std::vector<double> steps;
        for (const Note& note : musical_.sequence().notes())
            steps.push_back(note.start);
        return steps;
    };
    editor.document().recorder().setGrid(Grid::Beats);
    editor.rightMouseDown({60.5, 23.0});
    editor.mouseDragged({60.5, 25.0});
    editor.mouseUp({60.5, 25.0}, {});
    EXPECT_EQ(starts(), (std::vector{12.0}));
    EXPECT_EQ(musical_.sequence().notes().at(0).length, 24.0) << "up to a line";
    musical_.edit()->addNote({.start = 40.5,
                              .length = 2.0,
                              .velocity = 1.0F,
                              .key = 64,
                              .oldStart = 40.5,
                              .oldKey = 64});
    editor.document().recorder().setGrid(Grid::SixtyFourths);
    editor.mouseDown({64.5, 41.0}, {});
    editor.mouseUp({64.5, 41.0}, {});
    editor.mouseDown({60.5, 13.0}, Qt::ShiftModifier);
    editor.mouseDragged({60.5, 15.7});
    editor.mouseUp({60.5, 15.7}, {});
    EXPECT_EQ(starts(), (std::vector{14.5, 43.0})) << "the one under the mouse is on a line";
}

} // namespace velmora
