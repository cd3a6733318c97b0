// Measures the musical import of an XML organ with 244 pipes, which loop and have releases,
// compared with only decoding its files.

#include "base/FormatError.h"
#include "import/InstrumentDocument.h"
#include "import/SoundLoader.h"
#include "support/OrganFolder.h"
#include "support/RecordingHost.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr std::size_t kBenchRate = 48'000;
constexpr std::size_t kPipeFrames = 2 * kBenchRate;
constexpr std::size_t kReleaseFrame = 3 * kBenchRate / 2;
constexpr int kRanks = 4;

/// Two seconds of stereo with 24 bits, a loop of whole periods and a release.
std::string pipeFile(int key)
{
    const double hertz = 440.0 * std::exp2((key - 69) / 12.0);
    const double period = kBenchRate / hertz;
    std::string data;
    for (std::size_t frame = 0; frame < kPipeFrames; ++frame) {
        const double phase = 2.0 * std::numbers::pi * static_cast<double>(frame) / period;
        const double decay =
            frame < kReleaseFrame
                ? 1.0
                : std::exp((static_cast<double>(kReleaseFrame) - static_cast<double>(frame)) / 9e3);
        for (const double offset : {0.0, 0.4}) {
            const double value = std::sin(phase + offset) + 0.4 * std::sin(3.0 * phase + offset);
            const long sample = std::lround(2e6 * decay * value);
            for (const int shift : {0, 8, 16})
                data += static_cast<char>(sample >> shift & 0xFF);
        }
    }
    const auto begin = static_cast<std::size_t>(std::lround(100.0 * period));
    const auto end = static_cast<std::size_t>(std::lround(130.0 * period));
    const std::size_t rateOfBytes = 6 * kBenchRate;
    return riff::file(
        "WAVE",
        riff::chunk("fmt ", riff::numbers({1, 2}, 2) + riff::numbers({kBenchRate, rateOfBytes}, 4) +
                                riff::numbers({6, 24}, 2)) +
            riff::chunk("data", data) +
            riff::chunk("smpl", riff::numbers({0, 0, 0, static_cast<std::size_t>(key), 0, 0, 0, 1,
                                               0, 0, 0, begin, end - 1, 0, 0},
                                              4)) +
            riff::chunk("cue ", riff::numbers({1, 0, 0, 0, 0, 0, kReleaseFrame}, 4)));
}

/// The organ in a temporary folder.
class BenchOrgan {
public:
    BenchOrgan()
    {
        std::vector<std::string> pipes, layers, attacks, samples;
        for (int i = 0; i < kRanks * 61; ++i) {
            const int key = 36 + i % 61;
            const std::string id = std::to_string(i + 1);
            const std::string name = std::to_string(i) + ".wav";
            pipes.push_back("a=" + id + ",b=" + std::to_string(1 + i / 61) +
                            ",d=" + std::to_string(key));
            layers.push_back("a=" + id + ",b=" + id);
            attacks.push_back("b=" + id + ",c=" + id);
            samples.push_back("a=" + id + ",b=1,c=" + name);
            files.push_back(
                folder_.write("OrganInstallationPackages/000001/" + name, pipeFile(key)));
        }
        definition = folder_.write("OrganDefinitions/bench.xml",
                                   xmlOrganDefinition({{"Pipe_SoundEngine01", pipes},
                                                       {"Pipe_SoundEngine01_Layer", layers},
                                                       {"Pipe_SoundEngine01_AttackSample", attacks},
                                                       {"Sample", samples}}));
    }

    std::filesystem::path definition;
    std::vector<std::filesystem::path> files;

private:
    OrganFolder folder_;
};

const BenchOrgan& benchOrgan()
{
    static const BenchOrgan organ;
    return organ;
}

void decodeOrganFiles(benchmark::State& state)
{
    while (state.KeepRunning()) {
        SoundLoader loader(benchOrgan().files, {});
        for (std::size_t i = 0; i < benchOrgan().files.size(); ++i)
            benchmark::DoNotOptimize(loader.next());
    }
}

void importMusically(benchmark::State& state)
{
    while (state.KeepRunning()) {
        RecordingHost host;
        InstrumentDocument document;
        if (!document.read(benchOrgan().definition, InstrumentFormat::HauptwerkXml, {}, host))
            state.SkipWithError(document.errorString().c_str());
    }
}

BENCHMARK(decodeOrganFiles)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(importMusically)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace

} // namespace velmora
