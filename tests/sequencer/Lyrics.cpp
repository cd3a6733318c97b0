#include "sequencer/Lyrics.h"

#include "midi/MidiFileEvents.h"
#include "support/MidiBytes.h"

#include <gmock/gmock.h>

namespace velmora {

namespace {

std::string meta(std::size_t delta, std::uint8_t type, const std::string& text)
{
    return midi::quantity(delta) + midi::bytes({0xFF, type}) + midi::quantity(text.size()) + text;
}

/// Returns the lines of a file of one track as texts in which "|" parts the syllables.
std::vector<std::string> linesOf(const std::string& events)
{
    const std::string bytes = midi::file(events);
    std::vector<std::string> texts;
    for (const LyricLine& line : lyricsOf(readMidiFileEvents(std::as_bytes(std::span(bytes))))) {
        std::string text;
        for (const Syllable& syllable : line)
            text += (text.empty() ? "" : "|") + syllable.text;
        texts.push_back(text);
    }
    return texts;
}

} // namespace

TEST(Lyrics, AreReadAsFilesWriteThem)
{
    using testing::ElementsAre;
    using testing::IsEmpty;
    EXPECT_THAT(linesOf(meta(0, 1, "@KMIDI KARAOKE FILE") + meta(0, 1, "@TSong") +
                        meta(0, 1, "\\A") + meta(96, 1, "ve ") + meta(96, 1, "Ma") +
                        meta(96, 1, "ria") + meta(96, 1, "/gra") + meta(96, 1, "tia")),
                ElementsAre("A|ve |Ma|ria", "gra|tia"))
        << "a karaoke file";
    EXPECT_THAT(linesOf(meta(0, 1, "Copyist: X") + meta(0, 1, "Draft 2")), IsEmpty())
        << "texts that nobody sings";
    EXPECT_THAT(linesOf(meta(0, 1, "\\other") + meta(0, 5, "Glo") + meta(9, 5, "ri\xE4\r") +
                        meta(9, 5, "\n") + meta(9, 5, "in")),
                ElementsAre("Glo |ri\xC3\xA4 ", "in "))
        << "lyrics come first; Latin-1; words without spaces";
    EXPECT_THAT(linesOf(meta(0, 5, "Glo-") + meta(9, 5, "ri-") + meta(9, 5, "a")),
                ElementsAre("Glo-|ri-|a "));
    std::string endless;
    for (int i = 0; i < 30; ++i)
        endless += meta(9, 5, "la") + meta(9, 5, "la ");
    const auto lines = linesOf(endless);
    ASSERT_GT(lines.size(), 2U);
    for (const std::string& line : lines) {
        EXPECT_LT(line.size(), 90U);
        EXPECT_EQ(line.back(), ' ') << "broken between words";
    }
}

TEST(Lyrics, ALineAppearsShortlyBeforeItBegins)
{
    const std::vector<LyricLine> lines{
        {{8, "A"}, {16, "men "}}, {{40, "So "}, {44, "be "}}, {{46, "it "}}};
    const auto place = [&](double step) { return lyricPlaceAt(lines, step); };
    EXPECT_EQ(place(0), (LyricPlace{0, std::nullopt}));
    EXPECT_EQ(place(8), (LyricPlace{0, 0}));
    EXPECT_EQ(place(20), (LyricPlace{0, 1}));
    EXPECT_EQ(place(23), (LyricPlace{0, 1}));
    EXPECT_EQ(place(36), (LyricPlace{1, std::nullopt}));
    EXPECT_EQ(place(43), (LyricPlace{1, 0})) << "the next line waits until this one is sung";
    EXPECT_EQ(place(45), (LyricPlace{1, 1}));
    EXPECT_EQ(place(1000), (LyricPlace{2, 0}));
}

} // namespace velmora
