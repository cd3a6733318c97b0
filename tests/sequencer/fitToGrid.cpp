#include "sequencer/fitToGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace velmora {

namespace {

/// Notes of a player who plays eighths and a bass at the beginning of each bar, with a jitter of
/// ±20 ms.
std::vector<Note> play(double tempo, int beatsPerBar, double firstBeat, int beats, double rubato)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> jitter(-0.02, 0.02);
    std::vector<Note> notes;
    const MusicalTime time;
    double seconds = firstBeat;
    for (int beat = 0; beat < beats; ++beat) {
        const double length = 60.0 / (tempo * (1.0 + rubato * std::sin(0.3 * beat)));
        const auto add = [&](unsigned key, double at, float velocity) {
            const double start = time.stepAt(seconds + at + jitter(random));
            notes.push_back({.id = notes.size() + 1,
                             .start = start,
                             .length = 2.0,
                             .velocity = velocity,
                             .key = key});
        };
        add(60, 0.0, 0.5F);
        if (beat % 3 != 1)
            add(62, length / 2, 0.4F);
        if (beat % beatsPerBar == 0)
            add(36, 0.0, 0.8F);
        seconds += length;
    }
    return notes;
}

} // namespace

TEST(fitToGrid, FindsTheBeatsOfAFreeTake)
{
    for (const double tempo : {97.0, 84.0, 118.0})
        for (const int beatsPerBar : {4, 3}) {
            SCOPED_TRACE(std::to_string(tempo) + " " + std::to_string(beatsPerBar));
            const std::vector<Note> notes = play(tempo, beatsPerBar, 1.234, 48, 0.0);
            const auto beats = findBeats(notes, {});
            ASSERT_TRUE(beats);
            EXPECT_NEAR(beats->tempo(), tempo, 0.5);
            EXPECT_EQ(beats->beatsPerBar, beatsPerBar);
            EXPECT_EQ(beats->firstBar, 0);
            EXPECT_NEAR(beats->times[0], 1.234, 0.03);
        }
    const auto slow = findBeats(play(60.0, 3, 0.5, 48, 0.0), {}, 60.0);
    EXPECT_NEAR(slow.value().tempo(), 60.0, 0.5) << "not the eighths, as the user says";
    EXPECT_EQ(slow->beatsPerBar, 3);
    EXPECT_FALSE(findBeats(play(97.0, 4, 0.0, 3, 0.0), {})) << "too few notes";
    std::vector<Note> notes = play(97.0, 4, 0.0, 48, 0.0);
    EXPECT_NEAR(findBeats(notes, {}, 1e9).value().tempo(), FoundBeats::kFastest, 20.0);
    notes.back().start = 16.0 * 3600.0;
    EXPECT_GT(findBeats(notes, {}).value().times.size(), 3000U) << "over a long silence";
    notes.back().start = 16e9;
    EXPECT_FALSE(findBeats(notes, {})) << "for years";
}

TEST(fitToGrid, MovesTheBeatsToTheGridAndKeepsTheSound)
{
    const std::vector<Note> notes = play(97.0, 4, 1.0, 48, 0.06);
    const MusicalTime before;
    const Controllers pedal{{notes[0].start, 0, 64, 127}};
    const FittedPiece fitted = fitToGrid(notes, pedal, before, findBeats(notes, before).value());
    ASSERT_EQ(fitted.notes.size(), notes.size());
    int beat = 0;
    const double first = before.secondsAt(notes[0].start);
    const double firstFitted = fitted.time.secondsAt(fitted.notes[0].note->start);
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const Note& note = *fitted.notes[i].note;
        if (note.key == 60) {
            EXPECT_NEAR(note.start, 8.0 * beat, 0.8) << "near beat " << beat;
            ++beat;
        }
        EXPECT_NEAR(fitted.time.secondsAt(note.start) - firstFitted,
                    before.secondsAt(notes[i].start) - first, 0.06);
    }
    EXPECT_EQ(fitted.controllers[0].step, fitted.notes[0].note->start);
    EXPECT_EQ(fitted.time.timeSignatures()[0].count, 4);
    EXPECT_NEAR(fitted.time.tempoAt(100.0), 97.0, 10.0);
}

} // namespace velmora
