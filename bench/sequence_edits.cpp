// Measures edits of all notes of a sequence of 1,000,000 notes, as the editor makes them, and their
// undo.

#include "manyNotes.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/noteChanges.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace velmora {

namespace {

constexpr unsigned kCopies = 1'000'000 / kManyNotes;

/// A document in which every note is selected.
struct ManyNotes {
    ManyNotes()
    {
        {
            const auto edit = document.edit();
            edit->reserve(std::size_t{kCopies} * kManyNotes);
            for (unsigned i = 0; i < kCopies; ++i)
                addManyNotes(*edit);
            edit->sort();
        }
        document.updateExtent();
        editor.selectAll();
    }

    SilentHost host;
    SequenceDocument document{host};
    SequenceEditor editor{document};
};

template <class Edit> void measure(benchmark::State& state, const Edit& edit)
{
    const auto many = std::make_unique<ManyNotes>();
    for ([[maybe_unused]] auto iteration : state) {
        edit(many->editor);
        state.PauseTiming();
        many->document.undoStack().undo();
        many->editor.selectAll();
        state.ResumeTiming();
    }
}

void quantiseAll(benchmark::State& state)
{
    measure(state, [](SequenceEditor& editor) { editor.quantise({.unit = 3.0}); });
}

void makeAllLouder(benchmark::State& state)
{
    measure(state, [](SequenceEditor& editor) { editor.changeVelocity(0.1); });
}

void transposeAll(benchmark::State& state)
{
    measure(state, [](SequenceEditor& editor) { editor.transpose(1); });
}

void undoAll(benchmark::State& state)
{
    const auto many = std::make_unique<ManyNotes>();
    many->editor.quantise({.unit = 3.0});
    QUndoStack& stack = many->document.undoStack();
    for ([[maybe_unused]] auto iteration : state)
        stack.setIndex(1 - stack.index());
}

BENCHMARK(quantiseAll)->Unit(benchmark::kMillisecond);
BENCHMARK(makeAllLouder)->Unit(benchmark::kMillisecond);
BENCHMARK(transposeAll)->Unit(benchmark::kMillisecond);
BENCHMARK(undoAll)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
