#include "sequencer/SequenceFile.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr double kTicksPerStep = 512.0;

Note note(double start, double length, int key = 60, float velocity = 1.0F, int channel = 0)
{
    Note made;
    made.start = start;
    made.length = length;
    made.key = static_cast<unsigned>(key);
    made.velocity = velocity;
    made.channel = static_cast<unsigned>(channel);
    return made;
}

/// What comes back of the notes: "KEY/CHANNEL@START+LENGTH*VELOCITY", times in ticks, by their
/// keys.
std::vector<std::string> shown(const Sequence& sequence)
{
    std::vector<std::string> notes;
    for (const Note& n : sequence.notes())
        notes.push_back(
            fmt::format("{}/{}@{}+{}*{}", n.key, n.channel, std::round(n.start * kTicksPerStep),
                        std::round(n.length * kTicksPerStep), std::floor(n.velocity * 127.0F)));
    std::sort(notes.begin(), notes.end());
    return notes;
}

Sequence sequenceOf(const std::vector<Note>& notes)
{
    Sequence sequence;
    for (const Note& n : notes)
        sequence.addNote(n);
    return sequence;
}

std::vector<std::string> reread(const Sequence& sequence, bool isImported = false)
{
    const std::string bytes = writeSequence(sequence, kMidiFileType);
    Sequence read;
    const auto file =
        readSequence(readStandardMidiFile(std::as_bytes(std::span(bytes))), 0, 127, read);
    EXPECT_EQ(file.isImported, isImported);
    return shown(read);
}

using Notes = std::vector<std::string>;

} // namespace

TEST(SequenceWriting, GivesTheSameNotesBack)
{
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int round = 0; round < 50; ++round) {
        std::vector<Note> notes;
        std::array<double, 64> ends{};
        for (int i = 0; i < 300; ++i) {
            // Notes of one key and channel follow upon each other, half of them at once.
            const int voice = below(64);
            double& end = ends[static_cast<std::size_t>(voice)];
            const double start = end + below(2) * below(4000) / kTicksPerStep;
            const double length = (1 + below(5000)) / kTicksPerStep;
            const float velocity = static_cast<float>(1 + below(127)) / 127.0F;
            notes.push_back(note(start, length, voice * 2, velocity, voice % 16));
            end = start + length;
        }
        std::shuffle(notes.begin(), notes.end(), random);
        const Sequence sequence = sequenceOf(notes);
        ASSERT_EQ(reread(sequence), shown(sequence)) << round;
    }
}

TEST(SequenceWriting, BringsNotesWithinTheBoundsOfAFile)
{
    const double minute = 60.0 * kStepsPerSecond;
    for (const auto& [what, written, back] :
         std::vector<std::tuple<const char*, Note, std::string>>{
             {"short", note(1.0, 0.0001), "60/0@512+1*127"},
             {"no length", note(1.0, 0.0), "60/0@512+1*127"},
             {"back to front", note(1.0, -3.0), "60/0@512+1*127"},
             {"before the beginning", note(-1.0, 2.0), "60/0@0+1024*127"},
             {"off the grid", note(1.0005, 1.0015), "60/0@512+513*127"},
             {"cut off", note(0.0, 1.0, 60, 0.5F), "60/0@0+512*63"},
             {"silent", note(0.0, 1.0, 60, 0.0F), "60/0@0+512*1"},
             {"too loud", note(0.0, 1.0, 60, 2.5F), "60/0@0+512*127"},
             {"channel 19", note(0.0, 1.0, 60, 1.0F, 19), "60/3@0+512*127"},
             {"eight hours in", note(480 * minute, 1.0), "60/0@235929600+512*127"}})
        EXPECT_EQ(reread(sequenceOf({written})), Notes{back}) << what;
    EXPECT_EQ(reread(sequenceOf({note(600 * minute, 1.0)}), true), Notes{"60/0@294912000+512*127"})
        << "an event stands in the pause of ten hours";
    for (const Note& n : {note(1e12, 1.0), note(0.0, 1e12), note(std::nan(""), 1.0)})
        EXPECT_THROW(writeSequence(sequenceOf({n}), kMidiFileType), std::length_error);
    EXPECT_EQ(reread({}), Notes{});
}

TEST(SequenceWriting, KeepsOverlappingNotesOfOneKeyApart)
{
    const Sequence together = sequenceOf({note(0.0, 4.0, 60, 1.0F), note(0.0, 2.0, 60, 0.5F),
                                          note(1.0, 4.0, 60, 0.25F), note(1.0, 4.0, 60, 0.25F, 1)});
    EXPECT_EQ(reread(together), shown(together));
    EXPECT_EQ(reread(sequenceOf({note(0.0, 4.0), note(1.0, 1.0, 60, 0.5F)})),
              (Notes{"60/0@0+1024*127", "60/0@512+1536*63"}))
        << "one within another: they exchange their ends";
}

TEST(SequenceWriting, GoesByTheTypeOfTheName)
{
    for (const auto& [name, type] : {std::pair("a.mid", "MIDI File"),
                                     {"b.MIDI", "MIDI File"},
                                     {"c.smf", "MIDI File"},
                                     {"d.kar", "MIDI File"},
                                     {"e.Imy", "iMelody"},
                                     {"f.scl", ""},
                                     {"mid", ""}})
        EXPECT_EQ(sequenceTypeOf(name), type) << name;
    EXPECT_EQ(writeSequence({}, kIMelodyType).substr(0, 15), "BEGIN:IMELODY\r\n");
    EXPECT_EQ(writeSequence({}, kMidiFileType),
              std::string("MThd\0\0\0\6\0\0\0\1\x10\0MTrk\0\0\0\4\0\xFF\x2F\0", 26));
}
