// Measures a repaint of the piano roll up to the point where OpenGL draws it: finding the visible
// notes among 100,000 and collecting their vertices.

#include "desktop/roll/RollPicture.h"
#include "manyNotes.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QGuiApplication>
#include <QPalette>
#include <benchmark/benchmark.h>

using namespace velmora;

namespace {

/// The argument is the height of a step: 8 pixels are the default, and 1 pixel shows a tenth of the
/// piece. With `edited` the notes have just changed and are indexed again.
void repaint(benchmark::State& state, bool edited)
{
    SilentHost host;
    SequenceDocument document(host);
    addManyNotes(*document.edit());
    RollIndex index;
    index.rebuild(document.sequence().notes());
    const RollGeometry geometry{14,     static_cast<int>(state.range(0)),
                                294.0,  kManySteps / 2 * static_cast<double>(state.range(0)),
                                1232.0, 1000.0};
    RollPicture picture;
    for (auto _ : state) {
        if (edited)
            index.rebuild(document.sequence().notes());
        picture.draw(geometry, RollColors(QPalette()), 1.0, document, index);
        benchmark::DoNotOptimize(picture.vertices().data());
    }
    state.counters["quads"] = static_cast<double>(picture.vertices().size()) / 4;
}

/// One mouse movement that drags every tenth note, and its repaint.
void dragSelection(benchmark::State& state)
{
    SilentHost host;
    SequenceDocument document(host);
    addManyNotes(*document.edit());
    SequenceEditor editor(document);
    selectTenth(*document.edit());
    const Note& grip = document.sequence().notes()[0];
    const auto key = static_cast<double>(grip.key);
    editor.mouseDown({key, 0.5}, Qt::ShiftModifier); // keeps the other notes selected
    RollIndex index;
    RollPicture picture;
    double step = 0.5;
    for (auto _ : state) {
        editor.mouseDragged({key, step += 0.125});
        index.rebuild(document.sequence().notes());
        picture.draw({14, 8, 294.0, 40'000.0, 1232.0, 1000.0}, RollColors(QPalette()), 1.0,
                     document, index);
    }
    state.counters["selected"] = static_cast<double>(document.sequence().selection().size());
}

} // namespace

BENCHMARK_CAPTURE(repaint, still, false)->Arg(8)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(repaint, edited, true)->Arg(8)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragSelection)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
