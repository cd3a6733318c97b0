// Measures the rendering of sound, in seconds of sound per second: a whole piece as with `velmora
// render`, held keys, and an idle synthesizer.

#include "app/AppDelegate.h"
#include "app/SequenceRenderer.h"
#include "app/generalMidiBanks.h"
#include "audio/Synthesizer.h"
#include "midi/messages.h"
#include "tuning/TuningDocument.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

using namespace velmora;

namespace {

constexpr double kRate = 48000.0;
constexpr std::size_t kBlock = 128;

void countSeconds(benchmark::State& state, double seconds)
{
    state.counters["x real time"] = benchmark::Counter(seconds, benchmark::Counter::kIsRate);
}

/// Renders the example piece in a tuning. In Equal no lane resamples, which makes it the fastest.
void renderPiece(benchmark::State& state, const char* tuning)
{
    std::size_t frames = 0;
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming(); // while the SoundFont is loaded
        auto synthesizer = std::make_unique<Synthesizer>(kRate, generalMidiBanks());
        AppDelegate application;
        application.tunings().addBuiltins();
        application.tunings().put(TuningDocument::makeBuiltin("Dynamic"));
        application.makeMIDIPlayer(std::move(synthesizer));
        application.tunings().select(tuning);
        state.ResumeTiming();

        SequenceRenderer renderer(application.player(), application.engine(), Reading::Musical);
        renderer.document().read(VELMORA_EXAMPLES "/wolf-fantasia.mid");
        renderer.render(
            {},
            [&](const float* left, const float* right, std::size_t count) {
                benchmark::DoNotOptimize(left);
                benchmark::DoNotOptimize(right);
                frames += count;
            },
            [](double) { return true; });
    }
    countSeconds(state, static_cast<double>(frames) / kRate);
}
BENCHMARK_CAPTURE(renderPiece, Equal, "Equal")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(renderPiece, Meantone, "Quartercomma Meantone")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(renderPiece, Dynamic, "Dynamic")->Unit(benchmark::kMillisecond);

/// Renders one second of held keys, each on its own lane, with reverberation.
void holdKeys(benchmark::State& state)
{
    Synthesizer synthesizer(kRate, generalMidiBanks());
    const auto keys = static_cast<int>(state.range(0));
    for (int channel = 0; channel < keys; ++channel) {
        synthesizer.midiEvent(midi::kProgramChange | channel, 19, 0);
        synthesizer.midiEvent(midi::kPitchBend | channel, 17, 60); // resampled
        synthesizer.midiEvent(midi::kNoteOn | channel, 60 + channel, 80);
    }
    std::array<float, kBlock> left{}, right{};
    for ([[maybe_unused]] auto iteration : state) {
        for (std::size_t block = 0; block < static_cast<std::size_t>(kRate) / kBlock; ++block)
            synthesizer.render(left.data(), right.data(), kBlock, AudioSource::kOffline);
    }
    countSeconds(state, static_cast<double>(state.iterations()));
}
BENCHMARK(holdKeys)->Arg(0)->Arg(1)->Arg(4)->Arg(9)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
