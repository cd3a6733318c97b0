// What a tick costs while 100,000 notes are played, some eighty at a time, and what it would cost
// to walk through all of them.

#include "manyNotes.h"
#include "sequencer/Transport.h"

#include <benchmark/benchmark.h>

namespace velmora {

namespace {

constexpr double kTick = 120.0 * 0.125 / 1024.0; // in steps

Sequence manyNotes()
{
    Sequence sequence;
    addManyNotes(sequence);
    return sequence;
}

/// The position, going round.
double after(double position)
{
    return position + kTick < kManySteps ? position + kTick : 0.0;
}

void playByIndex(benchmark::State& state)
{
    SilentHost host;
    Sequence sequence = manyNotes();
    SequencePlayback playback(host, sequence);
    double position = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(playback.playBetween(position, position + kTick));
        position = after(position);
    }
}

/// The whole of a tick, with the clock and the signals.
void tick(benchmark::State& state)
{
    SilentHost host;
    Sequence sequence = manyNotes();
    double now = 0.0;
    Transport transport(host, sequence, [&] { return now; });
    transport.setExtent(kManySteps);
    transport.setLoop(true);
    transport.play();
    for ([[maybe_unused]] auto iteration : state) {
        now += 1.0 / 1024.0;
        transport.tick();
    }
}

void playByPlainWalk(benchmark::State& state)
{
    Sequence sequence = manyNotes();
    double position = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        for (std::size_t i = 0; i < sequence.notes().size(); ++i) {
            Note& note = sequence.at(i);
            const double end = note.start + note.length, next = position + kTick;
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
        playback.markAt(position, 0.1, 2);
        position = after(position);
    }
}

/// What the first tick after an edit costs besides.
void makeIndex(benchmark::State& state)
{
    const Sequence sequence = manyNotes();
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(SequenceIndex(sequence.notes()));
}

BENCHMARK(playByIndex);
BENCHMARK(tick);
BENCHMARK(playByPlainWalk);
BENCHMARK(lookByIndex);
BENCHMARK(makeIndex);

} // namespace

} // namespace velmora
