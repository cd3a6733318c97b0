#include "sequencer/scoreFile.h"

#include "base/File.h"
#include "notation/Piece.h"
#include "support/SequenceTest.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <tuple>

namespace velmora {

namespace {

class ScoreFile : public SequenceTest {
protected:
    std::filesystem::path write(const char* name, const std::string& bytes) const
    {
        auto path = std::filesystem::path(folder_.path().toStdString()) / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    auto notes() const
    {
        std::vector<std::tuple<double, double, unsigned, unsigned>> notes;
        for (const Note& note : piece_.sequence().notes())
            notes.emplace_back(note.start, note.length, note.key, note.channel);
        std::ranges::sort(notes);
        return notes;
    }

    SequenceDocument piece_{*this};
    QTemporaryDir folder_;
};

} // namespace

TEST_F(ScoreFile, OpensAsAPieceThatIsSavedAsAMidiFile)
{
    const std::string note = "<note><pitch><step>C</step><octave>4</octave></pitch>"
                             "<duration>2</duration></note>";
    const auto score = [&](const char* identity) {
        return "<part id=\"" + std::string(identity) +
               "\"><measure><attributes><divisions>6"
               "</divisions><time><beats>3</beats><beat-type>4</beat-type></time></attributes>"
               "<sound tempo=\"90\"/>" +
               note + note + note + "</measure></part>";
    };
    const auto path = write("a.xml", "<score-partwise><part-list><score-part id=\"A\"/>"
                                     "<score-part id=\"B\"/></part-list>" +
                                         score("A") + score("B") + "</score-partwise>");
    piece_.read(path);
    EXPECT_EQ(piece_.errorString(), "");
    EXPECT_TRUE(piece_.path().empty()) << "saving must not replace the score";
    const auto read = notes();
    ASSERT_EQ(read.size(), 6);
    EXPECT_EQ(std::get<3>(read[0]) + std::get<3>(read[1]), 1U) << "each part has a channel";
    EXPECT_NEAR(std::get<0>(read[2]), 8.0 / 3.0, 1e-9) << "a triplet, exactly on its ticks";
    EXPECT_EQ(piece_.transport().time().tempoAt(0.0), 60e6 / 666667);
    EXPECT_EQ(piece_.transport().time().barAt(0.0).length, 24.0);

    const auto midi = write("a.mid", "");
    ASSERT_TRUE(
        piece_.save(midi, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::SaveAs));
    piece_.read(midi);
    EXPECT_EQ(notes(), read);
    EXPECT_EQ(piece_.path(), midi);
}

TEST_F(ScoreFile, IsKnownByItsContentAmongXmlFiles)
{
    const std::string wide{"<\0s\0c\0o\0r\0e\0-\0t\0i\0m\0e\0w\0i\0s\0e\0>\0", 32};
    EXPECT_TRUE(isReadableScore(write("a.xml", "<!-- x --><score-partwise version=\"4.0\">")));
    EXPECT_TRUE(isReadableScore(write("b.XML", wide)));
    EXPECT_TRUE(isReadableScore("missing.MXL"));
    EXPECT_FALSE(isReadableScore(write("organ.xml", "<Hauptwerk FileFormat=\"Organ\">")));
    EXPECT_FALSE(isReadableScore("missing.xml"));
}

TEST_F(ScoreFile, GivesPartsTheChannelsOfTheirKind)
{
    Piece piece;
    for (int part = 0; part < 12; ++part)
        piece.parts.push_back({"", {{.start = part * 1.0, .length = 1.0, .key = 60}}});
    piece.parts[3].isPercussion = true;
    piece_.read(write("a.mid", midiFileOf(piece)));
    std::string channels;
    for (const auto& note : notes())
        channels += std::to_string(std::get<3>(note)) + ' ';
    EXPECT_EQ(channels, "0 1 2 9 3 4 5 6 7 8 10 11 ");
}

} // namespace velmora
