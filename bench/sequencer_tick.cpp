// Measures a tick while a sequence of 100,000 notes plays, about eighty of them at a time, and for
// comparison a visit to every note.

#include "manyNotes.h"
#include "sequencer/SequenceTime.h"
#include "sequencer/Transport.h"

#include <benchmark/benchmark.h>

namespace velmora {

namespace {

/// The steps of one tick.
constexpr double kTickSteps = 16.0 * kTick.count();

Sequence manyNotes()
{
    Sequence sequence;
    addManyNotes(sequence);
    return sequence;
}

/// Returns the next position, or the first one at the end.
double after(double position)
{
    return position + kTickSteps < kManySteps ? position + kTickSteps : 0.0;
}

void playByIndex(benchmark::State& state)
{
    SilentHost host;
    Sequence sequence = manyNotes();
    SequencePlayback playback(host, sequence);
    double position = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(playback.playBetween(position, position + kTickSteps));
        position = after(position);
    }
}

/// A whole tick, including the clock and the signals.
void tick(benchmark::State& state)
{
    SilentHost host;
    Sequence sequence = manyNotes();
    double now = 0.0;
    Transport transport(host, sequence, Reading::Musical, [&] { return now; });
    transport.setExtent(kManySteps);
    transport.setLoop(true);
    transport.play();
    for ([[maybe_unused]] auto iteration : state) {
        now += kTick.count();
        transport.tick();
    }
}

void visitAllNotes(benchmark::State& state)
{
    Sequence sequence = manyNotes();
    double position = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        for (std::size_t i = 0; i < sequence.notes().size(); ++i) {
            Note& note = sequence.at(i);
            const double end = note.start + note.length, next = position + kTickSteps;
            if (position <= note.start && note.start < next)
                note.playing = note.active = true;
            if (position < end && end <= next)
                note.playing = note.active = false;
        }
        position = after(position);
    }
}

void lookByIndex(benchmark::State& state)
{
    SilentHost host;
    Sequence sequence = manyNotes();
    SequencePlayback playback(host, sequence);
    double position = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        playback.markAt(position, 0.1, kWanted);
        position = after(position);
    }
}

/// The additional cost of the first tick after an edit.
void makeIndex(benchmark::State& state)
{
    const Sequence sequence = manyNotes();
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(SequenceIndex(sequence.notes()));
}

BENCHMARK(playByIndex);
BENCHMARK(tick);
BENCHMARK(visitAllNotes);
BENCHMARK(lookByIndex);
BENCHMARK(makeIndex);

} // namespace

} // namespace velmora
