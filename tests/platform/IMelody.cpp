#include "platform/IMelody.h"

#include <gtest/gtest.h>

namespace {

/// A note in beats.
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

TEST(IMelody, WritesTheWholeText)
{
    EXPECT_EQ(writeIMelody({}), "BEGIN:IMELODY\r\nVERSION:1.2\r\nFORMAT:CLASS1.0\r\nBEAT:120\r\n"
                                "STYLE:S0\r\nVOLUME:V7\r\nMELODY:r2\r\nEND:IMELODY\r\n");
    // 34 notes of two characters fill a line of 75; behind the space that goes on with it, 37.
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
    for (const auto& [key, text] : {std::pair(69, "*3a2"),
                                    {84, "*5c2"},
                                    {72, "c2"},
                                    {94, "*5#a2"},
                                    {24, "*0c2"},
                                    {12, "*0c2"},
                                    {1, "*0#c2"},
                                    {127, "*8g2"}})
        EXPECT_EQ(melody({note(key, 0.0, 1.0F)}), text) << key;
    for (const auto& [beats, text] : {std::pair(4.0F, "c0"),
                                      {0.125F, "c5"},
                                      {1.5F, "c2."},
                                      {1.75F, "c2:"},
                                      {2.0F / 3, "c2;"},
                                      {0.001F, "c5;"},
                                      {100.0F, "c0:"},
                                      {1.1F, "c2"},
                                      {5.0F, "c0"}})
        EXPECT_EQ(melody({note(72, 0.0, beats)}), text) << beats;
}

TEST(IMelody, KeepsItsPlaceInTime)
{
    EXPECT_EQ(melody({note(72, 1.0, 0.5F), note(74, 3.0, 1.0F)}), "r2c3r2.d2");
    EXPECT_EQ(melody({note(72, 0.0, 5.5F), note(74, 5.0, 1.0F)}), "c0r2d2") << "six would be late";
    EXPECT_EQ(melody({note(72, 0.0, 0.95F), note(74, 1.0, 0.95F)}), "c2d2") << "detached";
    std::vector<MidiEvent> fifths, grace;
    for (int i = 0; i < 10; ++i) {
        fifths.push_back(note(72 + i % 2, 0.2 * i, 0.2F));
        grace.push_back(note(72 + i % 2, i / 16.0, 1.0F / 16));
    }
    EXPECT_EQ(melody(fifths), "c5.#c5:c5.#c5:c5.#c5.c5:#c5.c5:#c5.") << "two beats in all";
    EXPECT_EQ(melody(grace), "c5;#c5;c5;c5;#c5;c5;c5;#c5;") << "two are left out";
}

TEST(IMelody, FollowsTheHighestNote)
{
    const MidiEvent bass = note(60, 0.0, 4.0F);
    for (const auto& [what, notes, text] :
         std::vector<std::tuple<const char*, std::vector<MidiEvent>, std::string>>{
             {"comes back", {bass, note(72, 1.0, 1.0F)}, "*3c2c2*3c1"},
             {"peeps out", {bass, note(72, 1.0, 0.8F), note(72, 2.0, 2.0F)}, "*3c2c3.r4c1"},
             {"chord let go", {note(72, 0.0, 1.0F), note(76, 0.0, 0.97F)}, "e2"},
             {"legato downwards", {note(76, 0.0, 0.15F), note(72, 0.125, 0.15F)}, "e4;c5"},
             {"struck again", {note(72, 0.0, 2.0F), note(72, 1.0, 0.5F)}, "c2c2"},
             {"below", {note(72, 0.0, 2.0F), note(71, 0.5, 1.0F)}, "c1"}})
        EXPECT_EQ(melody(notes), text) << what;
}
