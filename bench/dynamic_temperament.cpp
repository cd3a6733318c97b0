// Measures a key-down on the General MIDI instrument. The dynamic temperament chooses a spelling
// and bends eleven channels; equal temperament only plays the key.

#include "sound/MIDIInstrument.h"
#include "tuning/DynamicTemperament.h"

#include <benchmark/benchmark.h>

namespace velmora {

namespace {

class CountingMusicDevice : public MusicDevice {
public:
    explicit CountingMusicDevice(std::int64_t& messages) : messages_(messages) {}

    void midiEvent(int status, int data1, int data2) override
    {
        benchmark::DoNotOptimize(status + data1 + data2);
        ++messages_;
    }

private:
    std::int64_t& messages_;
};

void keyDown(benchmark::State& state, Temperament& temperament)
{
    std::int64_t messages = 0;
    MIDIInstrument instrument(std::make_unique<CountingMusicDevice>(messages));
    messages = 0;
    unsigned char key = 0;
    for ([[maybe_unused]] auto iteration : state) {
        // Steps through all pitch classes, by fifths.
        key = static_cast<unsigned char>((key + 7) % 128);
        temperament.setup(instrument, key, 0.8F);
        instrument.play(key, 0.8F);
    }
    state.counters["messages"] =
        benchmark::Counter(static_cast<double>(messages), benchmark::Counter::kAvgIterations);
}

void keyDownEqual(benchmark::State& state)
{
    Temperament temperament = Temperament::Equal();
    keyDown(state, temperament);
}
BENCHMARK(keyDownEqual);

void keyDownDynamic(benchmark::State& state)
{
    DynamicTemperament temperament;
    keyDown(state, temperament);
}
BENCHMARK(keyDownDynamic);

} // namespace

} // namespace velmora
