#include "app/scorePiece.h"

#include "app/Player.h"
#include "notation/musicXml.h"
#include "notation/readMusicXml.h"
#include "sequencer/SequenceDocument.h"
#include "support/MidiBytes.h"
#include "tuning/FollowingMeantone.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <fstream>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::HasSubstr;

TEST(ScorePiece, TakesBarsTempoAndSpellingFromTheFileAndTheTemperament)
{
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.filePath("air.mid").toStdString();
    // A minor third at 60 beats a minute after a bar of three: D flat and F in F minor.
    const std::string events = midi::bytes({0,
                                            0xFF,
                                            midi::kTrackName,
                                            3,
                                            'A',
                                            'i',
                                            'r',
                                            0,
                                            0xFF,
                                            midi::kTimeSignature,
                                            4,
                                            3,
                                            2,
                                            24,
                                            8,
                                            0,
                                            0xFF,
                                            midi::kKeySignature,
                                            2,
                                            -4,
                                            1}) +
                               midi::tempo(0, 1000000) + midi::on(288, 61) + midi::on(0, 65) +
                               midi::off(192, 61) + midi::off(0, 65);
    std::ofstream(path, std::ios::binary) << midi::file(events);
    Player player;
    SequenceDocument document(player);
    document.read(path);
    ASSERT_EQ(document.errorString(), "");

    FollowingMeantone following;
    const Piece piece = pieceOf(document, "Air", following);
    EXPECT_THAT(piece.timeSignatures, ElementsAre(FieldsAre(0.0, 3, 4)));
    EXPECT_THAT(piece.keySignatures, ElementsAre(FieldsAre(0.0, -4, true)));
    EXPECT_THAT(piece.tempos, ElementsAre(FieldsAre(0.0, 60.0)));
    ASSERT_EQ(piece.parts.size(), 1U);
    EXPECT_EQ(piece.parts.front().name, "Air");
    ASSERT_EQ(piece.parts.front().notes.size(), 2U);
    EXPECT_DOUBLE_EQ(piece.parts.front().notes[0].start, 3.0);
    EXPECT_DOUBLE_EQ(piece.parts.front().notes[0].length, 2.0);
    EXPECT_TRUE(piece.parts.front().notes[0].place);

    writeScore(folder.filePath("air.musicxml").toStdString(), piece);
    Temperament meantone = Temperament::Meantone();
    writeScore(folder.filePath("air.LY").toStdString(), pieceOf(document, "Air", meantone));
    const auto textOf = [&](const char* name) {
        std::ifstream file(folder.filePath(name).toStdString());
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    EXPECT_THAT(textOf("air.musicxml"), HasSubstr("<score-partwise"));
    EXPECT_THAT(textOf("air.LY"), HasSubstr("R1*3/4 |\n    <des' f'>2 r4 |"))
        << "spelled by the key signature";
}

TEST(ScorePiece, HasTheNamesAndSoundsOfTheVoices)
{
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.filePath("air.mid").toStdString();
    std::ofstream(path, std::ios::binary)
        << midi::file(midi::bytes({0, 0xFF, midi::kTrackName, 3, 'A', 'i', 'r', 0, 0xC0, 73}) +
                      midi::on(0, 72) + midi::off(96, 72));
    Player player;
    SequenceDocument document(player);
    document.read(path);
    document.edit()->addNote({.length = 8.0, .velocity = 1.0F, .channel = 9, .key = 36});
    Voices voices = document.voices();
    voices[0].name = "Flute";
    voices[9].name = "Drum";
    document.setVoices(voices, "");

    Temperament meantone = Temperament::Meantone();
    const Piece copy = readMusicXml(writeMusicXml(makeScore(pieceOf(document, "Air", meantone))));
    ASSERT_EQ(copy.parts.size(), 2U);
    EXPECT_EQ(copy.parts[0].name, "Flute") << "not as in the file";
    EXPECT_EQ(copy.parts[0].program, 73);
    EXPECT_FALSE(copy.parts[0].isPercussion);
    EXPECT_EQ(copy.parts[1].name, "Drum");
    EXPECT_TRUE(copy.parts[1].isPercussion);
    ASSERT_EQ(copy.parts[1].notes.size(), 1U);
    EXPECT_EQ(copy.parts[1].notes.front().key, 36U);
}

} // namespace velmora
