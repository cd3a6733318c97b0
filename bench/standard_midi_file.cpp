// Measures reading a Standard MIDI File of 100,000 notes, compared with adding up its bytes.

#include "midi/StandardMidiFile.h"
#include "sequencer/SequenceFile.h"

#include <benchmark/benchmark.h>

#include <numeric>
#include <string>

namespace velmora {

namespace {

std::string number(std::size_t value)
{
    std::string result;
    for (int shift = 24; shift >= 0; shift -= 8)
        result += static_cast<char>(value >> shift & 0xFF);
    return result;
}

/// A file of four-part chords without running status, with a tempo event before every 64th note.
std::string generatedFile(std::size_t notes)
{
    constexpr std::size_t kVoices = 4;
    std::string events;
    for (std::size_t i = 0; i < notes; i += kVoices) {
        if (i % 64 == 0)
            events += std::string("\0\xFF\x51\3\7\xA1", 6) + static_cast<char>(i / 64);
        for (const char status : {'\x90', '\x80'}) {
            for (std::size_t voice = 0; voice < kVoices; ++voice) {
                events += voice == 0 ? '\x30' : '\0';
                events += status;
                events += static_cast<char>(36 + 12 * voice + i / kVoices % 12);
                events += '\x50';
            }
        }
    }
    events += std::string("\0\xFF\x2F\0", 4);
    return std::string("MThd\0\0\0\6\0\0\0\1\0\x60MTrk", 18) + number(events.size()) + events;
}

std::span<const std::byte> view(const std::string& bytes)
{
    return std::as_bytes(std::span(bytes));
}

void countBytes(benchmark::State& state, const std::string& file)
{
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
}

void sumOfBytes(benchmark::State& state)
{
    const std::string file = generatedFile(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning()) {
        // One byte at a time, like a reader.
        std::uint32_t sum = 0;
        for (const std::byte value : view(file)) {
            sum += std::to_integer<std::uint32_t>(value);
            benchmark::DoNotOptimize(sum);
        }
    }
    countBytes(state, file);
}

void sumOfBytesVectorised(benchmark::State& state)
{
    const std::string file = generatedFile(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(std::accumulate(file.begin(), file.end(), std::uint32_t{0}));
    countBytes(state, file);
}

void readFile(benchmark::State& state)
{
    const std::string file = generatedFile(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(readStandardMidiFile(view(file)));
    countBytes(state, file);
}

void readFileIntoSequence(benchmark::State& state)
{
    const std::string file = generatedFile(static_cast<std::size_t>(state.range(0)));
    while (state.KeepRunning()) {
        Sequence sequence;
        benchmark::DoNotOptimize(readSequence(readStandardMidiFile(view(file)), 21, 108, sequence));
    }
    countBytes(state, file);
}

BENCHMARK(sumOfBytes)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(sumOfBytesVectorised)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(readFile)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(readFileIntoSequence)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
