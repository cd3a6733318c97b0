// Measures a piece of 1,000,000 notes with velocities, voices, changes of program and pedals:
// opening and saving its file, the memory that it takes, and the ticks while it plays.

#include "manyNotes.h"
#include "midi/MidiTrack.h"
#include "midi/messages.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceTime.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

namespace velmora {

namespace {

constexpr int kLongVoices = 16, kNotesOfVoice = 1'000'000 / kLongVoices;
constexpr std::uint16_t kLongDivision = 480;

/// Half a beat of a voice has one note.
constexpr std::uint64_t kNoteTicks = kLongDivision / 2;

/// One voice: a pedal every four notes, and another program every thousand.
std::string longTrack(int channel, std::mt19937& random)
{
    MidiTrack track;
    for (int i = 0; i < kNotesOfVoice; ++i) {
        const std::uint64_t tick = kNoteTicks * static_cast<std::uint64_t>(i);
        const int key = 36 + static_cast<int>(random() % 60);
        if (i % 1000 == 0)
            track.addMessage(tick, {midi::kProgramChange | channel, i / 1000 % 128});
        if (i % 4 == 0)
            track.addMessage(tick, {midi::kControlChange | channel, midi::kSustain, i % 8 * 16});
        const int velocity = 1 + static_cast<int>(random() % 127);
        track.addMessage(tick, {midi::kNoteOn | channel, key, velocity});
        track.addMessage(tick + kNoteTicks, {midi::kNoteOff | channel, key, 64});
    }
    return track.end(kNoteTicks * kNotesOfVoice);
}

/// The path of the file, which exists as long as the program runs.
const std::filesystem::path& longFile()
{
    static const QTemporaryDir folder;
    static const std::filesystem::path path = [] {
        const std::filesystem::path file = folder.filePath("long.mid").toStdString();
        std::mt19937 random(1);
        std::ofstream stream(file, std::ios::binary);
        stream << MidiTrack::header(1, kLongVoices, kLongDivision);
        for (int channel = 0; channel < kLongVoices; ++channel)
            stream << longTrack(channel, random);
        return file;
    }();
    return path;
}

std::size_t bytesInUse()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void openPiece(benchmark::State& state)
{
    SilentHost host;
    const auto& path = longFile();
    std::size_t before = 0, after = 0, notes = 0;
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        before = bytesInUse();
        auto document = std::make_unique<SequenceDocument>(host);
        state.ResumeTiming();
        document->read(path);
        state.PauseTiming();
        after = bytesInUse();
        notes = document->sequence().notes().size();
        document.reset();
        state.ResumeTiming();
    }
    state.counters["notes"] = static_cast<double>(notes);
    state.counters["bytes a note"] =
        static_cast<double>(after - before) / static_cast<double>(std::max(notes, std::size_t{1}));
}

void savePiece(benchmark::State& state)
{
    SilentHost host;
    SequenceDocument document(host);
    document.read(longFile());
    std::filesystem::path copy = longFile();
    copy += ".copy";
    for ([[maybe_unused]] auto iteration : state)
        document.save(copy, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::SaveAs);
}

void playPiece(benchmark::State& state)
{
    SilentHost host;
    double now = 0.0;
    SequenceDocument document(host, Reading::Musical, [&] { return now; });
    document.read(longFile());
    Transport& transport = document.transport();
    transport.setLoop(true);
    transport.play();
    for ([[maybe_unused]] auto iteration : state) {
        now += kTick.count();
        transport.tick();
    }
}

BENCHMARK(openPiece)->Unit(benchmark::kMillisecond);
BENCHMARK(savePiece)->Unit(benchmark::kMillisecond);
BENCHMARK(playPiece)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
