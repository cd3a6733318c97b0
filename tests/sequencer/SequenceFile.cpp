#include "sequencer/SequenceFile.h"

#include "platform/MidiBytes.h"

#include <gtest/gtest.h>

using namespace midi;

namespace {

struct Result {
    SequenceFile kept;
    Sequence sequence;
};

Result read(const std::string& bytes, int keyRangeLo = 21, int keyRangeHi = 108)
{
    Result result;
    result.kept =
        readSequence(readStandardMidiFile(view(bytes)), keyRangeLo, keyRangeHi, result.sequence);
    return result;
}

std::string note(std::size_t delta, int key)
{
    return on(delta, key) + off(96, key);
}

} // namespace

TEST(SequenceFile, TakesOverNotesInSteps)
{
    const Result result = read(file(on(48, 60, 64, 9) + off(192, 60, 9)));
    ASSERT_EQ(result.sequence.notes().size(), 1);
    const Note& note = result.sequence.notes()[0];
    EXPECT_EQ(note.start, 4.0) << "a quarter of a second";
    EXPECT_EQ(note.length, 16.0);
    EXPECT_EQ(note.oldStart, note.start);
    EXPECT_EQ(note.oldLength, note.length);
    EXPECT_EQ(note.velocity, 64.0F / 127.0F);
    EXPECT_EQ(note.channel, 9);
    EXPECT_EQ(note.key, 60);
    EXPECT_EQ(note.oldKey, 60);
    EXPECT_EQ(note.id, 1);
    EXPECT_FALSE(note.selected || note.active || note.playing);
    EXPECT_EQ(result.kept.mx, 4.0 + 16.0 + 32.0);
    EXPECT_EQ(read(file("")).kept.mx, 0.0);
}

TEST(SequenceFile, KnowsWhetherTheFileHoldsMore)
{
    const auto tracks = [](const std::string& first, const std::string& second) {
        return header(1, 2) + track(first) + track(second);
    };
    for (const auto& [name, bytes, notes, isImported] :
         std::vector<std::tuple<std::string, std::string, std::size_t, bool>>{
             {"nothing", file(""), 0, false},
             {"notes only", file(note(0, 60) + note(0, 62)), 2, false},
             {"first and last key", file(note(0, 21) + note(0, 108)), 2, false},
             {"below", file(note(0, 20) + note(0, 60)), 1, true},
             {"above", file(note(0, 109) + note(0, 60)), 1, true},
             {"no length", file(on(0, 60) + off(0, 60) + note(0, 62)), 1, true},
             {"tempo", file(tempo(0, 500'000) + note(0, 60)), 1, true},
             {"two tracks", tracks("", note(0, 60)), 1, true}}) {
        const Result result = read(bytes);
        EXPECT_EQ(result.sequence.notes().size(), notes) << name;
        EXPECT_EQ(result.kept.isImported, isImported) << name;
    }
}

TEST(SequenceFile, SortsTheNotesOfAllTracks)
{
    const Result result = read(header(1, 2) + track(note(192, 60)) + track(note(96, 62)));
    EXPECT_EQ(result.sequence.notes()[0].key, 62);
    EXPECT_EQ(result.kept.mx, 16.0 + 8.0 + 32.0);
}

TEST(SequenceFile, TakesADurationAsAPositionFromTheBeginning)
{
    // One second a beat from beat 1 on: the note at beat 2 lasts two seconds by the clock.
    const Result result = read(file(tempo(96, 1'000'000) + on(96, 60) + off(192, 60)));
    EXPECT_EQ(result.sequence.notes()[0].start, 1.5 * 16.0);
    EXPECT_EQ(result.sequence.notes()[0].length, 1.5 * 16.0);
}
