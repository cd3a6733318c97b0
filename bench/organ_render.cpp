// Measures the rendering of a sampled organ with OpenAL, in seconds of sound per second: chords of
// ten notes on 4, 40 and 60 stops, which are 40, 400 and 600 voices.

#include "sineOrgan.h"

#include <benchmark/benchmark.h>

#include <array>

namespace velmora {

namespace {

constexpr double kRate = 48000.0;
constexpr std::size_t kBlock = 128;
constexpr double kSeconds = 5.0;

void renderChord(benchmark::State& state)
{
    ALInstrument organ;
    fillWithSines(organ, static_cast<int>(state.range(0)), 3.0 * kSeconds);
    Temperament meantone = Temperament::Meantone();
    organ.tune(meantone, 0, 127);
    constexpr std::array kChord = {36, 43, 48, 52, 55, 60, 64, 67, 72, 76};
    std::array<float, kBlock> left{};
    std::array<float, kBlock> right{};
    std::size_t frames = 0;
    for ([[maybe_unused]] auto iteration : state) {
        for (const int key : kChord)
            organ.play(key, 1.0F);
        for (std::size_t i = 0; i < static_cast<std::size_t>(kSeconds * kRate) / kBlock; ++i) {
            organ.source()->render(left.data(), right.data(), kBlock, AudioSource::kOffline);
            benchmark::DoNotOptimize(left.data());
            frames += kBlock;
        }
    }
    state.counters["voices"] = static_cast<double>(organ.renderer().voices());
    state.counters["x real time"] =
        benchmark::Counter(static_cast<double>(frames) / kRate, benchmark::Counter::kIsRate);
}
BENCHMARK(renderChord)->Arg(4)->Arg(40)->Arg(60)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
