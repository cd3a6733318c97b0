#include "sequencer/SequenceFile.h"

#include "platform/MidiBytes.h"

#include <gtest/gtest.h>

using namespace midi;

static SequenceFile read(const std::string& bytes, Sequence& sequence)
{
    return readSequence(readStandardMidiFile(std::as_bytes(std::span(bytes))), 21, 108, sequence);
}

TEST(SequenceFile, TakesOverNotesInSteps)
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
    EXPECT_EQ(kept.mx, 16.0 + 8.0 + 32.0);
    // One second a beat from beat 1 on. The note at beat 2 lasts two seconds by the clock, but a
    // duration is looked up as a position.
    Sequence slowing;
    read(file(tempo(96, 1'000'000) + on(96, 60) + off(192, 60)), slowing);
    EXPECT_EQ(slowing.notes().at(0).start, 1.5 * 16.0);
    EXPECT_EQ(slowing.notes().at(0).length, 1.5 * 16.0);
}

TEST(SequenceFile, KnowsWhetherTheFileHoldsMore)
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
