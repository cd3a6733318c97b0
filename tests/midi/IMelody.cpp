#include "midi/IMelody.h"

#include <gtest/gtest.h>

#include <regex>

namespace velmora {

namespace {

/// A note with times in beats.
MidiEvent note(int key, double beats, float duration)
{
    return {beats, duration, MidiEvent::Kind::Note, 0, static_cast<std::uint8_t>(key), 64};
}

std::string melody(const std::vector<MidiEvent>& notes)
{
    const std::string text = writeIMelody(notes);
    const std::size_t begin = text.find("MELODY:", 20) + 7;
    return text.substr(begin, text.find("\r\nEND:") - begin);
}

} // namespace

TEST(IMelody, WritesHeadersAndFoldsLines)
{
    EXPECT_EQ(writeIMelody({}), "BEGIN:IMELODY\r\nVERSION:1.2\r\nFORMAT:CLASS1.0\r\nBEAT:120\r\n"
                                "STYLE:S0\r\nVOLUME:V7\r\nMELODY:r2\r\nEND:IMELODY\r\n");
    // Notes of two characters: 34 fill the first line of 75, and 37 fill a continuation line.
    std::vector<MidiEvent> repeated;
    std::string expected;
    for (int i = 0; i < 72; ++i) {
        repeated.push_back(note(72, i, 1.0F));
        expected += i == 34 || i == 71 ? "\r\n c2" : "c2";
    }
    EXPECT_EQ(melody(repeated), expected);
}

TEST(IMelody, NamesKeysAndLengths)
{
    std::vector<MidiEvent> keys, lengths;
    for (const int key : {69, 84, 72, 94, 24, 12, 1, 127})
        keys.push_back(note(key, static_cast<double>(keys.size()), 1.0F));
    EXPECT_EQ(melody(keys), "*3a2*5c2c2*5#a2*0c2*0c2*0#c2*8g2");
    for (const float length : {5.0F, 4.0F, 0.125F, 1.5F, 1.75F, 0.667F, 0.001F, 100.0F, 1.1F})
        lengths.push_back(note(72, 200.0 * static_cast<double>(lengths.size()), length));
    EXPECT_EQ(std::regex_replace(melody(lengths), std::regex("(r.[.:;]?|\r\n |c)+"), " "),
              " 0 0 5 2. 2: 2; 5; 0: 2");
}

TEST(IMelody, DoesNotAccumulateRoundingErrors)
{
    EXPECT_EQ(melody({note(72, 1.0, 0.5F), note(74, 3.0, 1.0F)}), "r2c3r2.d2");
    EXPECT_EQ(melody({note(72, 0.0, 5.5F), note(74, 5.0, 1.0F)}), "c0r2d2")
        << "a longer note would delay the next";
    EXPECT_EQ(melody({note(72, 0.0, 0.95F), note(74, 1.0, 0.95F)}), "c2d2") << "detached";
    std::vector<MidiEvent> fifths, grace;
    for (int i = 0; i < 10; ++i) {
        fifths.push_back(note(72 + i % 2, 0.2 * i, 0.2F));
        grace.push_back(note(72 + i % 2, i / 16.0, 1.0F / 16));
    }
    EXPECT_EQ(melody(fifths), "c5.#c5:c5.#c5:c5.#c5.c5:#c5.c5:#c5.") << "two beats in all";
    EXPECT_EQ(melody(grace), "c5;#c5;c5;c5;#c5;c5;c5;#c5;") << "two are omitted";
}

TEST(IMelody, FollowsTheHighestNote)
{
    const MidiEvent bass = note(60, 0.0, 4.0F);
    for (const auto& [what, notes, text] :
         std::vector<std::tuple<const char*, std::vector<MidiEvent>, std::string>>{
             {"returns to the bass", {bass, note(72, 1.0, 1.0F)}, "*3c2c2*3c1"},
             {"short gap between high notes",
              {bass, note(72, 1.0, 0.8F), note(72, 2.0, 2.0F)},
              "*3c2c3.r4c1"},
             {"released chord", {note(72, 0.0, 1.0F), note(76, 0.0, 0.97F)}, "e2"},
             {"legato downwards", {note(76, 0.0, 0.15F), note(72, 0.125, 0.15F)}, "e4;c5"},
             {"struck again", {note(72, 0.0, 2.0F), note(72, 1.0, 0.5F)}, "c2c2"},
             {"lower note", {note(72, 0.0, 2.0F), note(71, 0.5, 1.0F)}, "c1"}})
        EXPECT_EQ(melody(notes), text) << what;
}

} // namespace velmora
