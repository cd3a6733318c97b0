// Measures the import of a large SoundFont bank. For comparison, also measures reading the file and
// copying its samples, which every importer has to do, and loading it with FluidSynth. Each
// measurement runs in its own process, so that none reuses the memory of another; `peak_MB` is the
// peak memory of the process. The bank is $VELMORA_SOUNDFONT or that of the package
// fluid-soundfont-gm.

#include "import/Import.h"
#include "import/RIFF.h"
#include "import/sf2.h"

#include <benchmark/benchmark.h>
#include <fluidsynth.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace velmora {

namespace {

std::filesystem::path bank()
{
    const char* chosen = std::getenv("VELMORA_SOUNDFONT");
    return chosen ? chosen : "/usr/share/sounds/sf2/FluidR3_GM.sf2";
}

class SilentHost : public InstrumentHost {
public:
    void startProgress(long /*steps*/) override {}
    void updateProgress(unsigned /*steps*/, const std::string& /*text*/) override {}
    bool isCancelled() const override { return false; }
};

template <class Work> double secondsOf(Work&& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double import()
{
    SilentHost host;
    Import result(host, {Reading::Plain});
    return secondsOf([&result] { readSoundFont(bank(), result); });
}

/// Reads the file once and copies its sample data once.
double readAndCopy()
{
    return secondsOf([] {
        // Uninitialised, since clearing it would take another pass.
        const auto size = std::filesystem::file_size(bank());
        const std::unique_ptr<std::byte[]> bytes(new std::byte[size]);
        const auto source = openFile(bank());
        source->read(0, {bytes.get(), size});

        const RIFF::File file({bytes.get(), size});
        const auto* pool =
            file.get<RIFF::List>(RIFF::code("sdta"))->get<RIFF::Chunk>(RIFF::code("smpl"));
        const std::unique_ptr<std::byte[]> copy(new std::byte[pool->length()]);
        std::memcpy(copy.get(), bytes.get() + pool->offset(), pool->length());
        benchmark::DoNotOptimize(copy.get());
        benchmark::ClobberMemory();
    });
}

double loadByFluidSynth()
{
    fluid_settings_t* settings = new_fluid_settings();
    fluid_synth_t* synth = new_fluid_synth(settings);
    const double seconds = secondsOf([synth] {
        if (fluid_synth_sfload(synth, bank().c_str(), 1) == FLUID_FAILED)
            std::exit(1);
    });
    delete_fluid_synth(synth);
    delete_fluid_settings(settings);
    return seconds;
}

/// Runs `work` in a new process and returns its seconds. Adds the memory of the process to the
/// report.
double inFreshProcess(double (*work)(), benchmark::State& state)
{
    int ends[2];
    if (pipe(ends) != 0)
        return 0.0;
    const pid_t child = fork();
    if (child == 0) {
        const double seconds = work();
        _exit(write(ends[1], &seconds, sizeof(seconds)) == sizeof(seconds) ? 0 : 1);
    }
    close(ends[1]);
    double seconds = 0.0;
    if (read(ends[0], &seconds, sizeof(seconds)) != sizeof(seconds))
        state.SkipWithError("the process failed");
    close(ends[0]);
    rusage usage{};
    wait4(child, nullptr, 0, &usage);
    state.counters["peak_MB"] = static_cast<double>(usage.ru_maxrss) / 1024;
    return seconds;
}

void measure(benchmark::State& state, double (*work)())
{
    if (!std::filesystem::exists(bank())) {
        state.SkipWithError("there is no bank: install fluid-soundfont-gm");
        return;
    }
    while (state.KeepRunning())
        state.SetIterationTime(inFreshProcess(work, state));
}

BENCHMARK_CAPTURE(measure, readAndCopy, readAndCopy)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measure, import, import)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measure, fluidSynth, loadByFluidSynth)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
