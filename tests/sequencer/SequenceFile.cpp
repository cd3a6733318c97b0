#include "sequencer/SequenceFile.h"

#include "support/MidiBytes.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <cmath>
#include <random>
#include <set>

namespace velmora {

using namespace midi;

namespace {

using Notes = std::multiset<std::string>;

SequenceFile read(const std::string& bytes, Sequence& sequence, int lowest = 21, int highest = 108)
{
    const auto file = readStandardMidiFile(std::as_bytes(std::span(bytes)));
    return readSequence(file, lowest, highest, sequence);
}

Note note(double start, double length, int key = 60, float velocity = 1.0F, int channel = 0)
{
    return {.start = start,
            .length = length,
            .velocity = velocity,
            .channel = static_cast<unsigned>(channel),
            .key = static_cast<unsigned>(key)};
}

/// "KEY/CHANNEL@START+LENGTH*VELOCITY" for each note, with times in ticks of 1/512 step.
Notes shown(const std::vector<Note>& notes)
{
    Notes result;
    for (const Note& n : notes)
        result.insert(fmt::format("{}/{}@{}+{}*{}", n.key, n.channel, std::round(n.start * 512.0),
                                  std::round(n.length * 512.0), std::floor(n.velocity * 127.0F)));
    return result;
}

/// Writes the notes to a file and reads them again.
Notes reread(const std::vector<Note>& notes, bool isImported = false)
{
    Sequence written, back;
    for (const Note& one : notes)
        written.addNote(one);
    const std::string bytes = writeSequence(written, SequenceFormat::MidiFile);
    EXPECT_EQ(read(bytes, back, 0, 127).isImported, isImported);
    return shown(back.notes());
}

} // namespace

TEST(SequenceFile, ReadsTheNotesThatItHasWritten)
{
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    std::vector<Note> notes;
    std::array<double, 64> ends{};
    for (int i = 0; i < 10'000; ++i) {
        // Notes of one key and channel follow each other, half of them without a gap.
        const int voice = below(64);
        double& end = ends[static_cast<std::size_t>(voice)];
        const double start = end + below(2) * below(4000) / 512.0;
        end = start + (1 + below(5000)) / 512.0;
        const float velocity = static_cast<float>(1 + below(127)) / 127.0F;
        notes.push_back(note(start, end - start, voice * 2, velocity, voice % 16));
    }
    std::shuffle(notes.begin(), notes.end(), random);
    EXPECT_EQ(reread(notes), shown(notes));

    std::vector<Note> heap; // overlapping notes on two keys
    for (int i = 0; i < 1000; ++i)
        heap.push_back(note(below(400) / 4.0, (1 + below(400)) / 4.0, 60 + below(2),
                            static_cast<float>(1 + below(127)) / 127.0F, below(2)));
    EXPECT_EQ(reread(heap), shown(heap));
}

TEST(SequenceFile, LimitsNotesToWhatAFileCanHold)
{
    for (const auto& [written, back] :
         std::vector<std::pair<Note, std::string>>{{note(1, 0.0001), "60/0@512+1*127"},
                                                   {note(1, -3), "60/0@512+1*127"},
                                                   {note(-1, 2), "60/0@0+1024*127"},
                                                   {note(1.0005, 1.0015), "60/0@512+513*127"},
                                                   {note(0, 1, 60, 0.5F), "60/0@0+512*63"},
                                                   {note(0, 1, 60, 0.0F), "60/0@0+512*1"},
                                                   {note(0, 1, 60, 2.5F), "60/0@0+512*127"},
                                                   {note(0, 1, 60, 1.0F, 19), "60/3@0+512*127"},
                                                   {note(500'000, 1), "60/0@256000000+512*127"}})
        EXPECT_EQ(reread({written}), Notes{back});
    EXPECT_EQ(reread({note(600'000, 1)}, true), Notes{"60/0@307200000+512*127"})
        << "an event divides a pause of ten hours";
    for (const Note& endless : {note(1e12, 1), note(0, 1e12), note(std::nan(""), 1)})
        EXPECT_THROW(reread({endless}), std::length_error);
}

TEST(SequenceFile, ReadsNotesInSteps)
{
    Sequence sequence;
    const auto kept = read(header(1, 2) + track(on(192, 60) + off(96, 60)) +
                               track(on(48, 62, 64, 9) + off(192, 62, 9)),
                           sequence);
    const Note& note = sequence.notes().at(0);
    EXPECT_EQ(note.start, 4.0) << "sorted; a quarter of a second";
    EXPECT_EQ(note.length, 16.0);
    EXPECT_EQ(note.velocity, 64.0F / 127.0F);
    EXPECT_EQ(note.channel, 9);
    EXPECT_EQ(note.oldKey, 62);
    EXPECT_EQ(kept.extent, 16.0 + 8.0 + 32.0);
    // A beat takes one second from beat 1 on. The note lasts two seconds, but its duration is
    // converted like a position.
    Sequence slowing;
    read(file(tempo(96, 1'000'000) + on(96, 60) + off(192, 60)), slowing);
    EXPECT_EQ(slowing.notes().at(0).start, 1.5 * 16.0);
    EXPECT_EQ(slowing.notes().at(0).length, 1.5 * 16.0);
}

TEST(SequenceFile, ReportsIfTheFileHoldsMore)
{
    const std::string note = on(0, 60) + off(96, 60);
    for (const auto& [name, bytes, notes, isImported] :
         std::vector<std::tuple<const char*, std::string, std::size_t, bool>>{
             {"nothing", file(""), 0, false},
             {"first and last key", file(on(0, 21) + on(0, 108) + note), 3, false},
             {"below", file(on(0, 20) + note), 1, true},
             {"above", file(on(0, 109) + note), 1, true},
             {"no length", file(on(0, 60) + off(0, 60) + note), 1, true},
             {"tempo", file(tempo(0, 500'000) + note), 1, true},
             {"two tracks", header(1, 2) + track("") + track(note), 1, true}}) {
        Sequence sequence;
        EXPECT_EQ(read(bytes, sequence).isImported, isImported) << name;
        EXPECT_EQ(sequence.notes().size(), notes) << name;
    }
}

} // namespace velmora
