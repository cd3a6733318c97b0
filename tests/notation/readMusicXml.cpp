#include "notation/readMusicXml.h"

#include "base/FormatError.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

namespace velmora {

using testing::ElementsAre;

namespace {

/// A note of so many divisions, of which a quarter note has four.
std::string note(const std::string& step, int divisions, const std::string& more = {})
{
    return "<note>" + more + "<pitch><step>" + step +
           "</step><octave>4</octave></pitch><duration>" + std::to_string(divisions) +
           "</duration></note>";
}

std::string measure(const std::string& content)
{
    return "<measure>" + content + "</measure>";
}

std::string score(const std::string& measures, const std::string& instrument = {})
{
    return "<?xml version=\"1.0\"?>\n<score-partwise><part-list><score-part id=\"P1\">"
           "<part-name>Flute</part-name>" +
           instrument + "</score-part></part-list><part id=\"P1\">" + measures +
           "</part></score-partwise>";
}

const std::string kDivisions = "<attributes><divisions>4</divisions></attributes>";

/// Names the keys of a piece's first part from C4 on, with their starts in quarter notes.
std::string playedBy(const Piece& piece)
{
    std::string played;
    for (const Piece::Note& each : piece.parts.at(0).notes)
        played += "C-D-EF-G-A-B"[each.key - 60];
    return played;
}

std::string errorOf(const std::string& bytes)
{
    try {
        readMusicXml(bytes);
        return {};
    } catch (const FormatError& error) {
        return error.inFile("a.musicxml");
    }
}

/// Returns a zip archive of files that are given by name and content.
std::string zip(const std::vector<std::pair<const char*, std::string>>& files)
{
    std::string bytes(1 << 16, '\0');
    std::size_t used = 0;
    archive* writer = archive_write_new();
    archive_write_set_format_zip(writer);
    archive_write_open_memory(writer, bytes.data(), bytes.size(), &used);
    for (const auto& [name, content] : files) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, name);
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
        archive_write_header(writer, entry);
        archive_write_data(writer, content.data(), content.size());
        archive_entry_free(entry);
    }
    archive_write_free(writer);
    return bytes.substr(0, used);
}

} // namespace

TEST(ReadMusicXml, PlaysRepetitionsAndReturns)
{
    const std::string forward = R"(<barline><repeat direction="forward"/></barline>)";
    const std::string backward = R"(<barline><repeat direction="backward"/></barline>)";
    const auto ending = [](const std::string& number, const std::string& type) {
        return "<barline><ending number=\"" + number + "\" type=\"" + type + "\"/></barline>";
    };
    const auto sound = [](const std::string& what) { return "<sound " + what + "/>"; };
    const std::string c = note("C", 4), d = note("D", 4), e = note("E", 4), f = note("F", 4),
                      g = note("G", 4);
    const struct {
        std::vector<std::string> measures;
        const char* played;
    } rows[] = {
        {{c, d + backward, e}, "CDCDE"},
        {{c, forward + d + backward, e}, "CDDE"},
        {{c, forward + d + R"(<barline><repeat direction="backward" times="3"/></barline>)", e},
         "CDDDE"},
        {{c, ending("1", "start") + d + ending("1", "stop") + backward,
          ending("2", "start") + e + ending("2", "discontinue"), f, g + backward},
         "CDCEFGFG"},
        {{c, ending("1, 2", "start") + d + ending("1, 2", "stop") + backward,
          ending("3", "start") + e + ending("3", "stop"), f},
         "CDCDCEF"},
        {{c, ending("1", "start") + d + ending("1", "stop") + backward,
          ending("2", "start") + e + ending("2", "stop") + backward, f},
         "CDCEF"},
        {{c, d + backward + sound("fine=\"yes\""), e + sound("dacapo=\"yes\"")}, "CDCDECD"},
        {{c, sound("segno=\"s\"") + d, sound("tocoda=\"c\"") + e, f + sound("dalsegno=\"s\""),
          sound("coda=\"c\"") + g},
         "CDEFDEG"},
    };
    for (const auto& [measures, played] : rows) {
        std::string written = measure(kDivisions + measures[0]);
        for (std::size_t i = 1; i < measures.size(); ++i)
            written += measure(measures[i]);
        EXPECT_EQ(playedBy(readMusicXml(score(written))), played);
    }
}

TEST(ReadMusicXml, ReturnsToTheTempoAndTheVerseOfARepetition)
{
    const std::string verses = R"(<lyric number="1"><syllabic>begin</syllabic><text>A</text></lyric>
        <lyric number="2"><text>B</text></lyric>)";
    const Piece piece = readMusicXml(score(
        measure(kDivisions + R"(<sound tempo="90"/>)" + note("C", 16)) +
        measure(R"(<barline><repeat direction="forward"/></barline>)" + note("D", 16, verses)) +
        measure(R"(<sound tempo="50"/>)" + note("E", 16) +
                R"(<barline><repeat direction="backward"/></barline>)")));
    EXPECT_THAT(piece.tempos, ElementsAre(Piece::Tempo{0.0, 90.0}, Piece::Tempo{8.0, 50.0},
                                          Piece::Tempo{12.0, 90.0}, Piece::Tempo{16.0, 50.0}));
    const auto& lyrics = piece.parts.at(0).lyrics;
    ASSERT_EQ(lyrics.size(), 2);
    EXPECT_EQ(lyrics[0].text + '|' + lyrics[1].text, "A|B ") << "a space ends a word";
    EXPECT_EQ(lyrics[1].start, 12.0);
}

TEST(ReadMusicXml, ReadsWhatNotesSay)
{
    const std::string grace =
        "<note><grace/><pitch><step>B</step><octave>4</octave></pitch></note>";
    const std::string tie = R"(<tie type="start"/>)", tied = R"(<tie type="stop"/>)";
    const Piece piece = readMusicXml(
        score(measure("<attributes><divisions>4</divisions><key><fifths>1</fifths></key>"
                      "<time><beats>4</beats><beat-type>4</beat-type></time><transpose><diatonic>-1"
                      "</diatonic><chromatic>-2</chromatic></transpose></attributes>" +
                      note("D", 4, "<cue/>") + note("D", 4, tie)) +
                  measure(note("D", 4, tied) + grace +
                          "<direction><direction-type><dynamics><ff/></dynamics>"
                          "</direction-type></direction>" +
                          note("E", 2) + note("G", 2, "<chord/>") +
                          "<backup><duration>2</duration></backup>" + note("A", 10)),
              R"(<midi-instrument id="I"><midi-program>74</midi-program></midi-instrument>)"));
    const auto& part = piece.parts.at(0);
    const auto is = [](unsigned key, double start, double length) {
        return testing::AllOf(testing::Field(&Piece::Note::key, key),
                              testing::Field(&Piece::Note::start, start),
                              testing::Field(&Piece::Note::length, length));
    };
    EXPECT_THAT(part.notes, ElementsAre(is(60, 0, 2), is(69, 1.875, 0.125), is(62, 2, 0.5),
                                        is(65, 2, 0.5), is(67, 2, 2.5)))
        << "a whole tone below what is written";
    EXPECT_EQ(part.notes[0].place, 0);
    EXPECT_LT(part.notes[0].velocity, 0.7F);
    EXPECT_GT(part.notes[2].velocity, 0.8F);
    EXPECT_EQ(part.program, 73);
    EXPECT_EQ(piece.keySignatures.at(0).fifths, -1);
    EXPECT_THAT(piece.timeSignatures,
                ElementsAre(Piece::TimeSignature{0.0, 1, 4}, Piece::TimeSignature{1.0, 4, 4}))
        << "a pick-up";
}

TEST(ReadMusicXml, ReadsCompressedScoresAndSaysWhatIsWrong)
{
    const std::string container = R"(<container><rootfiles><rootfile full-path="in/a.xml"/>
        </rootfiles></container>)";
    const std::string plain = score(measure(kDivisions + note("G", 4)));
    EXPECT_EQ(
        playedBy(readMusicXml(zip({{"META-INF/container.xml", container}, {"in/a.xml", plain}}))),
        "G");
    const std::pair<std::string, const char*> rows[] = {
        {zip({{"META-INF/container.xml", container}}),
         "a.musicxml: the score \"in/a.xml\" is missing from the archive"},
        {zip({{"a.txt", "x"}}), "a.musicxml: is an archive, but not of a score"},
        {"PK\x03\x04 rubbish", "a.musicxml: is a damaged archive"},
        {"<score-partwise>\n  <part></prt>", "a.musicxml, line 2, column 11: the XML is damaged"},
        {"<container/>", "a.musicxml: is not a MusicXML score"},
        {"<score-partwise/>", "a.musicxml: the score has no parts"},
        {score("<measure number=\"7\">" + note("C", 2000000000) + "</measure>"),
         "a.musicxml: measure 7 is too long"},
        {score("<measure number=\"8\">" + note("C", 4) + note("E", 2000000000, "<chord/>") +
               "</measure>"),
         "a.musicxml: measure 8 is too long"},
    };
    for (const auto& [bytes, error] : rows)
        EXPECT_THAT(errorOf(bytes), testing::StartsWith(error));
}

} // namespace velmora
