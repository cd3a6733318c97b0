#include "midi/StandardMidiFile.h"

#include "base/FormatError.h"
#include "support/MidiBytes.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

namespace velmora {

using namespace midi;

namespace {

std::string skip(std::size_t notes)
{
    return bytes({0, 0xFF, 0x7F, 9, 0x7D}) + "Velmora" + number(notes, 1);
}

StandardMidiFile read(const std::string& file)
{
    return readStandardMidiFile(std::as_bytes(std::span(file)));
}

/// Lists the events: "60@1+0.5 " is a note on key 60 at beat 1 for half a beat, "-@1 " another
/// event.
std::string firstTrack(const std::string& file)
{
    const auto tracks = read(file).tracks;
    std::string result;
    for (const MidiEvent& event : tracks.at(0))
        result += event.kind == MidiEvent::Kind::Note
                      ? fmt::format("{}@{}+{} ", event.key, event.beats, event.duration)
                      : fmt::format("-@{} ", event.beats);
    return result;
}

std::string errorOf(const std::string& file)
{
    try {
        read(file);
        return "none";
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
}

} // namespace

TEST(StandardMidiFile, ReadsEveryKindOfEvent)
{
    const std::string first = on(0, 60);
    for (const auto& [name, events, shown] : std::vector<std::array<std::string, 3>>{
             {"velocity 0", first + on(48, 60, 0), "60@0+0.5 "},
             {"overlapping notes", first + on(96, 60) + off(96, 60) + off(96, 60),
              "60@0+2 60@1+2 "},
             {"skipped note", first + on(0, 60) + skip(1) + off(96, 60) + off(96, 60),
              "60@0+2 60@0+1 "},
             {"more skipped than open", first + skip(1) + off(96, 60) + off(9, 9), "60@0+1 "},
             {"another manufacturer", first + bytes({0, 0xFF, 0x7F, 1, 0x7D, 96, 60, 0}),
              "60@0+1 -@0 "},
             {"channels", first + on(0, 60, 9, 1) + off(96, 60, 1) + off(96, 60), "60@0+2 60@0+1 "},
             {"unpaired note-off", off(0, 60) + first + off(96, 62), "60@0+1 "},
             {"running status", first + bytes({96, 60, 0, 96, 62, 1, 96, 62, 0}), "60@0+1 62@2+1 "},
             {"text", first + bytes({0, 0xFF, 1, 0, 96, 60, 0}), "60@0+1 -@0 "},
             {"other messages", bytes({0, 0xA0, 1, 2, 0, 0xC0, 1, 0, 0xD0, 1, 9, 2}),
              "-@0 -@0 -@0 -@0.09375 "},
             {"exclusive", bytes({96, 0xF0, 2, 1, 0xF7, 0, 0xF7, 1, 0xF8}), "-@1 -@1 "},
             {"ended", bytes({0, 0xFF, 0x2F, 0}) + first, ""},
             {"longest delta", bytes({0xFF, 0xFF, 0xFF, 0x7F, 0xC0, 1}), "-@2796202.65625 "}})
        EXPECT_EQ(firstTrack(file(events)), shown) << name;
    const std::string one = track(first + off(96, 60));
    for (const auto& [name, file] : std::vector<std::pair<std::string, std::string>>{
             {"unknown chunk", header(0, 1) + chunk("XFIH", "abc") + one},
             {"long header", chunk("MThd", bytes({0, 2, 0, 1, 0, 96, 1, 2, 3})) + one},
             {"no end-of-track mark", header(0, 1) + chunk("MTrk", first + off(96, 60))},
             {"junk after the end", header(0, 1) + one + "junk"},
             {"RIFF wrapping", "RIFFsizeRMIDdatasize" + header(0, 1) + one}})
        EXPECT_EQ(firstTrack(file), "60@0+1 ") << name;
}

TEST(StandardMidiFile, ConvertsBeatsToSeconds)
{
    EXPECT_EQ(read(file("")).secondsForBeats(3.0), 1.5) << "120 beats a minute";
    const StandardMidiFile two = read(header(1, 2) + track(tempo(576, 250'000)) +
                                      track(tempo(192, 9) + tempo(0, 1'000'000) + tempo(192, 0)));
    EXPECT_DOUBLE_EQ(two.secondsForBeats(6.0), 5.0)
        << "the last of two at one time counts; 0 is ignored";
    EXPECT_DOUBLE_EQ(two.secondsForBeats(10.0), 6.0);
    for (const auto& [division, seconds] :
         {std::pair(0xE728, 3.0), {0xE804, 31.25}, {0xE250, 1.25}, {0xE364, 1.001}}) {
        const auto frames = read(file(tempo(0, 9) + on(3000, 60), static_cast<unsigned>(division)));
        EXPECT_DOUBLE_EQ(frames.secondsForBeats(frames.tracks[0][1].beats), seconds) << division;
    }
}

TEST(StandardMidiFile, SaysWhatIsWrongAndWhere)
{
    const auto inTrack = [](std::initializer_list<int> events) {
        return header(0, 1) + chunk("MTrk", bytes(events)) + track(""); // events begin at byte 22
    };
    const std::string noStart = ": this is not a Standard MIDI File: \"MThd\" is missing";
    const std::string beyond = ": an event exceeds the end of its track";
    for (const auto& [file, message] : std::vector<std::pair<std::string, std::string>>{
             {"", "0" + noStart},
             {"RIFFxxxxRMIDdataxxxxMThx", "20" + noStart},
             {"MThd", "4: the file ends inside the header of a chunk"},
             {chunk("MThd", number(1, 4)), "12: the header is too short"},
             {header(3, 1), "8: the format is 3, not 0, 1 or 2"},
             {header(0, 0), "10: the header announces no tracks"},
             {header(0, 1, 0), "12: the division is 0 ticks a quarter note"},
             {header(0, 1, 0xE700), "12: the division is 0 ticks a frame"},
             {header(0, 1, 0xE601),
              "12: the division has 26 frames a second, not 24, 25, 29 or 30"},
             {header(1, 2) + track(""), "26: the file ends after 1 of 2 tracks"},
             {header(0, 1) + "MTrk\xFF\xFF\xFF\xFF...",
              "14: a chunk of 4294967295 bytes is truncated: the file has only 3 more"},
             {inTrack({0, 60, 64}), "23: an event has no status, and there is no running status"},
             {inTrack({0x81}), "23" + beyond},
             {inTrack({0, 0xFF, 1, 5, 'x'}), "26" + beyond},
             {inTrack({0, 0xF0, 0x83, 0x7F, 'x'}), "26" + beyond},
             {inTrack({128, 128, 128, 128, 0}),
              "22: a variable-length quantity is longer than four bytes"},
             {inTrack({0, 0x90, 60, 0x80}), "25: expected a data byte, not 0x80"},
             {inTrack({0, 0xF8}), "23: an event in a file cannot have the status 0xF8"},
             {inTrack({0, 0xFF, 0x51, 2, 1, 1}), "23: a tempo event has 2 bytes instead of 3"}})
        EXPECT_EQ(errorOf(file), "f, byte " + message);
}

} // namespace velmora
