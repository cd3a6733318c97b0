#include "notation/Score.h"

#include "notation/lilyPond.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

Piece pieceOf(std::vector<Piece::Note> notes)
{
    Piece piece;
    piece.title = "A \"title\"";
    piece.parts.push_back({"Organ", std::move(notes)});
    return piece;
}

/// Returns the elements of a voice of the first part, such as "c4~ r8": of each, its lowest letter
/// and its value.
std::string written(const Score& score, unsigned number = 0)
{
    std::string text;
    for (const auto& bar : score.parts.front().bars) {
        for (const Score::Voice& voice : bar) {
            if (voice.staff != 0 || voice.number != number)
                continue;
            for (const Score::Element& element : voice.elements) {
                text += element.pitches.empty() ? 'r' : element.pitches.front().letter;
                text += std::to_string(element.value.value);
                text += element.value.isDotted ? "." : "";
                text += element.value.isTriplet ? "t" : "";
                text += element.isTied ? "~ " : " ";
            }
        }
        text += "| ";
    }
    return text;
}

} // namespace

TEST(WrittenPitch, SpellsKeysByTheirPlaceOrTheKeySignature)
{
    EXPECT_EQ(writtenPitch(60, {}, 0), (WrittenPitch{'C', 0, 4}));
    EXPECT_EQ(writtenPitch(60, 12, 0), (WrittenPitch{'B', 1, 3}))
        << "B sharp lies below its octave";
    EXPECT_EQ(writtenPitch(59, -7, 0), (WrittenPitch{'C', -1, 4}));
    EXPECT_EQ(writtenPitch(68, {}, 0), (WrittenPitch{'G', 1, 4}));
    EXPECT_EQ(writtenPitch(68, {}, -3), (WrittenPitch{'A', -1, 4}));
    EXPECT_EQ(writtenPitch(61, 2, 0), writtenPitch(61, {}, 0)) << "place 2 is D";
    for (int fifths = -7; fifths <= 7; ++fifths) {
        for (unsigned key = 0; key < 128; ++key) {
            const WrittenPitch pitch = writtenPitch(key, {}, fifths);
            EXPECT_EQ(pitch.key(), static_cast<int>(key)) << fifths;
            EXPECT_EQ(writtenPitch(key, pitch.place(), 0), pitch) << key << " with " << fifths;
        }
    }
}

TEST(Score, WritesValuesThatReadersExpect)
{
    EXPECT_EQ(written(makeScore(pieceOf({{0.0, 1.5, 72}, {1.5, 0.5, 74}, {2.0, 2.0, 76}}))),
              "C4. D8 E2 | ");
    EXPECT_EQ(written(makeScore(pieceOf({{3.0, 3.0, 72}}))), "r2. C4~ | C2 r2 | ")
        << "tied over the bar";
    EXPECT_EQ(written(makeScore(pieceOf({{0.0, 0.5, 72}, {0.5, 1.0, 74}, {1.5, 0.5, 76}}))),
              "C8 D4 E8 r2 | ")
        << "a syncopation";
    const double third = 1.0 / 3;
    EXPECT_EQ(written(makeScore(pieceOf({{0.0, third, 72}, {third, third, 74}, {1.0, 2.0, 76}}))),
              "C8t D8t r8t E2 r4 | ");
    EXPECT_EQ(written(makeScore(pieceOf({{0.01, 0.9, 72}, {1.02, 0.45, 74}, {1.49, 0.4, 76}}))),
              "C4 D8 E8 r2 | ")
        << "as played";
    EXPECT_EQ(written(makeScore(pieceOf({}))), "r1 | ");
}

TEST(Score, GivesEachVoiceAndHandItsPlace)
{
    const Score score = makeScore(
        pieceOf({{0.0, 4.0, 72}, {0.0, 1.0, 67}, {1.0, 3.0, 65}, {0.0, 4.0, 48}, {0.0, 4.0, 43}}));
    EXPECT_EQ(written(score), "C1 | ");
    EXPECT_EQ(written(score, 1), "G4 F2. | ");
    ASSERT_THAT(score.parts.front().isBass, ElementsAre(false, true));
    const Score::Voice& bass = score.parts.front().bars.front().back();
    EXPECT_EQ(bass.staff, 1U);
    EXPECT_EQ(bass.elements.front().pitches.size(), 2U) << "a chord";

    std::vector<Piece::Note> many;
    for (unsigned i = 0; i < 7; ++i)
        many.push_back({0.5 * i, 8.0 - i, 60 + i});
    std::size_t notes = 0;
    for (const Score::Part& part : makeScore(pieceOf(many)).parts)
        for (const auto& bar : part.bars)
            for (const Score::Voice& voice : bar)
                for (const Score::Element& element : voice.elements)
                    notes += element.continuesTie ? 0 : element.pitches.size();
    EXPECT_EQ(notes, many.size()) << "more voices than a staff has";
    EXPECT_THROW(makeScore(pieceOf({{2e6, 1.0, 60}})), std::length_error);
}

TEST(Score, CutsBarsWhereTheTimeSignatureChanges)
{
    Piece piece = pieceOf({{0.0, 1.0, 72}, {1.0, 3.0, 74}, {4.0, 3.0, 76}});
    piece.timeSignatures = {{0.0, 4, 4}, {1.0, 3, 4}, {4.0, 6, 8}};
    piece.tempos = {{0.0, 90.0}, {5.5, 60.0}};
    const Score score = makeScore(piece);
    std::vector<int> starts;
    for (const Score::Bar& bar : score.bars)
        starts.push_back(bar.start / kScoreDivisions);
    EXPECT_THAT(starts, ElementsAre(0, 1, 4)) << "an upbeat";
    EXPECT_EQ(written(score), "C4 | D2. | E2. | ");
    EXPECT_THAT(score.bars[2].tempos, testing::SizeIs(1));

    const std::string lilyPond = writeLilyPond(score);
    EXPECT_THAT(lilyPond, HasSubstr(R"(title = "A \"title\"")"));
    EXPECT_THAT(lilyPond, HasSubstr("\\key c \\major \\time 4/4 \\tempo 4 = 90 s1*1/4 |"));
    EXPECT_THAT(lilyPond, HasSubstr("\\time 6/8 s1*3/8 \\tempo 4 = 60 s1*3/8 |"));
    EXPECT_THAT(lilyPond, HasSubstr("c''4 |\n    d''2. |\n    e''2. |"));
}

} // namespace velmora
