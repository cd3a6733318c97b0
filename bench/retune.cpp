// Measures a key-down on a sampled organ with 60 stops. The dynamic temperament checks every key
// and retunes those whose pitch has changed; then the key plays in every stop. The pure
// temperament, in which all twelve pitch classes are held, moves each of them a little.

#include "base/Log.h"
#include "sineOrgan.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/PureTemperament.h"

#include <benchmark/benchmark.h>

#include <array>

namespace velmora {

namespace {

constexpr int kStops = 60;

class Retune : public benchmark::Fixture {
public:
    void SetUp(benchmark::State& /*state*/) override
    {
        setLogLevel(spdlog::level::warn);
        organ_ = std::make_unique<ALInstrument>();
        fillWithSines(*organ_, kStops, 0.1);
        organ_->tune(temperament_, 0, 127);
    }

    void TearDown(benchmark::State& /*state*/) override { organ_.reset(); }

protected:
    DynamicTemperament temperament_;
    std::unique_ptr<ALInstrument> organ_;
};

/// Returns the next key. The keys step through all pitch classes, by fifths.
unsigned char nextKey(unsigned char key)
{
    return static_cast<unsigned char>(36 + (key - 36 + 7) % 61);
}

BENCHMARK_F(Retune, noPitchChanges)(benchmark::State& state)
{
    unsigned char key = 36;
    for ([[maybe_unused]] auto iteration : state) {
        key = nextKey(key);
        temperament_.setup(*organ_, key, 0.8F);
    }
}

BENCHMARK_F(Retune, onePitchClassChanges)(benchmark::State& state)
{
    int n = 0;
    for ([[maybe_unused]] auto iteration : state) {
        // Alternates between the lower and the upper spelling.
        n = n == 2 ? 4 : 2;
        temperament_.isomorph(*organ_, n);
    }
}

BENCHMARK_F(Retune, keyDownAndUp)(benchmark::State& state)
{
    std::array<float, 128> left{}, right{};
    unsigned char key = 36;
    for ([[maybe_unused]] auto iteration : state) {
        key = nextKey(key);
        temperament_.setup(*organ_, key, 0.8F);
        organ_->play(key, 0.8F);
        organ_->stop(key);
        organ_->fade(0.0);
        if (key == 36) { // empties the queue to the audio thread
            state.PauseTiming();
            organ_->source()->render(left.data(), right.data(), left.size(), AudioSource::kOffline);
            state.ResumeTiming();
        }
    }
}

BENCHMARK_F(Retune, keyDownWhileAllPitchesMove)(benchmark::State& state)
{
    std::array<float, 128> left{}, right{};
    PureTemperament pure;
    unsigned char key = 36;
    double time = 0.0;
    for ([[maybe_unused]] auto iteration : state) {
        key = nextKey(key);
        pure.setTime(time += 0.1);
        pure.setup(*organ_, key, 0.8F);
        organ_->play(key, 0.8F);
        state.PauseTiming();
        organ_->stop(key);
        organ_->fade(0.0);
        organ_->source()->render(left.data(), right.data(), left.size(), AudioSource::kOffline);
        state.ResumeTiming();
    }
}

BENCHMARK_F(Retune, fadeOfSilence)(benchmark::State& state)
{
    for ([[maybe_unused]] auto iteration : state)
        organ_->fade(0.9);
}

} // namespace

} // namespace velmora
