#include "notation/musicXml.h"

#include "notation/readMusicXml.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <tuple>

namespace velmora {

namespace {

/// Up to three voices of notes on the grid, with triplets.
std::vector<Piece::Note> randomNotes(std::mt19937& random)
{
    std::vector<Piece::Note> notes;
    for (unsigned voice = 0; voice < 3; ++voice) {
        double time = 0.0;
        for (int i = 0; i < 30; ++i) {
            const bool isTriplet = time == std::floor(time) && random() % 4 == 0;
            const auto key = static_cast<unsigned>(36 + voice * 20 + random() % 18);
            for (int part = 0; part < (isTriplet ? 3 : 1); ++part) {
                const double length =
                    isTriplet ? 1.0 / 3 : 0.25 * static_cast<double>(1 + random() % 12);
                if (random() % 5 != 0)
                    notes.push_back({.start = time, .length = length, .key = key});
                time += length;
            }
            time = std::round(time * 4) / 4;
        }
    }
    return notes;
}

/// Returns start and end in twelfths of a quarter note, key and place, sorted.
auto tuplesOf(const Piece& piece)
{
    std::vector<std::tuple<long, long, unsigned, int>> notes;
    for (const Piece::Part& part : piece.parts)
        for (const Piece::Note& note : part.notes)
            notes.emplace_back(std::lround(note.start * 12),
                               std::lround(note.start * 12 + note.length * 12), note.key,
                               note.place.value_or(99));
    std::ranges::sort(notes);
    return notes;
}

} // namespace

TEST(MusicXml, GivesBackWhatWasWritten)
{
    std::mt19937 random(7);
    for (int run = 0; run < 50; ++run) {
        Piece piece;
        piece.title = "<Ricercar>";
        piece.parts.push_back({"Organo & più", randomNotes(random), 19});
        // Triplets against sixteenths in one quarter note have no common grid.
        auto& notes = piece.parts.front().notes;
        std::erase_if(notes, [&](const Piece::Note& note) {
            const bool isTriplet = std::abs(note.length * 4 - std::round(note.length * 4)) > 0.01;
            return isTriplet != (run % 2 == 1);
        });
        for (Piece::Note& note : notes)
            note.place = writtenPitch(note.key, {}, 2).place();
        piece.timeSignatures = {{0.0, 3, 4}, {6.0, 4, 4}};
        piece.keySignatures = {{0.0, 2, false}, {6.0, -3, true}};
        piece.tempos = {{0.0, 72.5}, {7.5, 96.0}};
        const Piece copy = readMusicXml(writeMusicXml(makeScore(piece)));
        EXPECT_EQ(copy.title, piece.title);
        EXPECT_THAT(copy.parts.front().name, testing::StartsWith(piece.parts.front().name));
        EXPECT_EQ(copy.parts.front().program, 19);
        EXPECT_EQ(copy.timeSignatures, piece.timeSignatures);
        EXPECT_EQ(copy.keySignatures, piece.keySignatures);
        EXPECT_EQ(copy.tempos, piece.tempos);
        ASSERT_EQ(tuplesOf(copy), tuplesOf(piece)) << "run " << run;
    }
}

} // namespace velmora
