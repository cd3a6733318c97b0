#include "sequencer/SequenceFile.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace {

using Notes = std::multiset<std::string>;

Note note(double start, double length, int key = 60, float velocity = 1.0F, int channel = 0)
{
    return {.start = start,
            .length = length,
            .velocity = velocity,
            .channel = static_cast<unsigned>(channel),
            .key = static_cast<unsigned>(key)};
}

Sequence sequenceOf(const std::vector<Note>& notes)
{
    Sequence sequence;
    for (const Note& one : notes)
        sequence.addNote(one);
    return sequence;
}

/// "KEY/CHANNEL@START+LENGTH*VELOCITY", times in ticks, of which a step has 512.
Notes shown(const Sequence& sequence)
{
    Notes notes;
    for (const Note& n : sequence.notes())
        notes.insert(fmt::format("{}/{}@{}+{}*{}", n.key, n.channel, std::round(n.start * 512.0),
                                 std::round(n.length * 512.0), std::floor(n.velocity * 127.0F)));
    return notes;
}

/// The notes of the file that is written of these.
Notes reread(const std::vector<Note>& notes, bool isImported = false)
{
    const std::string bytes = writeSequence(sequenceOf(notes), kMidiFileType);
    Sequence read;
    const auto midi = readStandardMidiFile(std::as_bytes(std::span(bytes)));
    EXPECT_EQ(readSequence(midi, 0, 127, read).isImported, isImported);
    return shown(read);
}

} // namespace

TEST(SequenceWriting, GivesTheSameNotesBack)
{
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    std::vector<Note> notes;
    std::array<double, 64> ends{};
    for (int i = 0; i < 10'000; ++i) {
        // Notes of one key and channel follow upon each other, half of them at once.
        const int voice = below(64);
        double& end = ends[static_cast<std::size_t>(voice)];
        const double start = end + below(2) * below(4000) / 512.0;
        end = start + (1 + below(5000)) / 512.0;
        const float velocity = static_cast<float>(1 + below(127)) / 127.0F;
        notes.push_back(note(start, end - start, voice * 2, velocity, voice % 16));
    }
    std::shuffle(notes.begin(), notes.end(), random);
    EXPECT_EQ(reread(notes), shown(sequenceOf(notes)));

    const std::vector<Note> together = {note(0, 4), note(0, 2, 60, 0.5F), note(1, 4, 60, 0.25F)};
    EXPECT_EQ(reread(together), shown(sequenceOf(together))) << "of one key, overlapping";
    EXPECT_EQ(reread({note(0, 4), note(1, 1, 60, 0.5F)}),
              (Notes{"60/0@0+1024*127", "60/0@512+1536*63"}))
        << "one within another: they exchange their ends";
}

TEST(SequenceWriting, BringsNotesWithinTheBoundsOfAFile)
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
        << "an event stands in a pause of ten hours";
    for (const Note& endless : {note(1e12, 1), note(0, 1e12), note(std::nan(""), 1)})
        EXPECT_THROW(reread({endless}), std::length_error);
}

TEST(SequenceWriting, GoesByTheTypeOfTheName)
{
    for (const auto& [name, type] : {std::pair("a.MIDI", "MIDI File"),
                                     {"b.kar", "MIDI File"},
                                     {"c.Imy", "iMelody"},
                                     {"d.scl", ""},
                                     {"mid", ""}})
        EXPECT_EQ(sequenceTypeOf(name), type) << name;
    EXPECT_EQ(writeSequence({}, kIMelodyType).substr(0, 15), "BEGIN:IMELODY\r\n");
    EXPECT_EQ(writeSequence({}, kMidiFileType),
              std::string("MThd\0\0\0\6\0\0\0\1\x10\0MTrk\0\0\0\4\0\xFF\x2F\0", 26));
}
