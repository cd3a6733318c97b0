// Measures the decoding of 500 WAV files of 24 bits: in a plain loop, and with a SoundLoader on one
// thread and on all cores.

#include "audio/AudioFileDecoder.h"
#include "import/SoundLoader.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <unistd.h>

namespace velmora {

namespace {

constexpr int kFiles = 500;
constexpr std::size_t kFrames = 48'000;
constexpr std::size_t kFrameBytes = 6;

std::string number(std::size_t value, int bytes)
{
    std::string result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(value >> 8 * i & 0xFF);
    return result;
}

/// One second of stereo noise.
std::string wave(std::uint32_t seed)
{
    const std::string format = number(1, 2) + number(2, 2) + number(48'000, 4) +
                               number(48'000 * kFrameBytes, 4) + number(kFrameBytes, 2) +
                               number(24, 2);
    std::string data;
    for (std::size_t i = 0; i < kFrames * kFrameBytes; ++i) {
        seed = seed * 1'664'525 + 1'013'904'223;
        data += static_cast<char>(seed >> 24);
    }
    const std::string chunks =
        "WAVEfmt " + number(format.size(), 4) + format + "data" + number(data.size(), 4) + data;
    return "RIFF" + number(chunks.size(), 4) + chunks;
}

/// The files, in a temporary folder that is deleted at the end.
class Files {
public:
    Files()
    {
        std::string name = (std::filesystem::temp_directory_path() / "decodeXXXXXX").string();
        folder_ = mkdtemp(name.data());
        for (int i = 0; i < kFiles; ++i) {
            paths.push_back(folder_ / (std::to_string(i) + ".wav"));
            std::ofstream(paths.back(), std::ios::binary) << wave(static_cast<std::uint32_t>(i));
        }
    }
    ~Files() { std::filesystem::remove_all(folder_); }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    std::vector<std::filesystem::path> paths;

private:
    std::filesystem::path folder_;
};

const Files& files()
{
    static const Files result;
    return result;
}

void decode(benchmark::State& state, unsigned threads)
{
    while (state.KeepRunning()) {
        SoundLoader loader(files().paths, {}, threads);
        for (int i = 0; i < kFiles; ++i)
            benchmark::DoNotOptimize(loader.next());
    }
    state.SetItemsProcessed(state.iterations() * kFiles);
}

void plainLoop(benchmark::State& state)
{
    while (state.KeepRunning()) {
        for (const auto& path : files().paths)
            benchmark::DoNotOptimize(decodeAudioFile(path));
    }
    state.SetItemsProcessed(state.iterations() * kFiles);
}

void oneThread(benchmark::State& state)
{
    decode(state, 1);
}

void allCores(benchmark::State& state)
{
    decode(state, std::thread::hardware_concurrency());
}

BENCHMARK(plainLoop)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(oneThread)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(allCores)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace velmora
