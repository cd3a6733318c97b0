#include "platform/StandardMidiFile.h"

#include "base/FormatError.h"
#include "platform/MidiBytes.h"

#include <gmock/gmock.h>

#include <map>
#include <sstream>

using namespace midi;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

StandardMidiFile read(const std::string& file)
{
    return readStandardMidiFile(view(file));
}

/// "60@1+0.5" is a note of key 60 at beat 1, half a beat long; "-@1" another event.
std::vector<std::string> shown(const std::vector<MidiEvent>& track)
{
    std::vector<std::string> result;
    for (const MidiEvent& event : track) {
        std::ostringstream text;
        if (event.kind == MidiEvent::Kind::Note)
            text << int{event.key} << '@' << event.beats << '+' << event.duration;
        else
            text << "-@" << event.beats;
        result.push_back(text.str());
    }
    return result;
}

std::vector<std::string> eventsOf(const std::string& events)
{
    return shown(read(file(events)).tracks.at(0));
}

std::string errorOf(const std::string& file)
{
    try {
        read(file);
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
    return "none";
}

const std::string kController = bytes({0, 0xB0, 7, 100});

} // namespace

TEST(StandardMidiFile, JoinsNoteOnsAndNoteOffs)
{
    EXPECT_THAT(eventsOf(on(96, 60) + off(48, 60)), ElementsAre("60@1+0.5"));
    EXPECT_THAT(eventsOf(on(96, 60) + on(48, 60, 0)), ElementsAre("60@1+0.5")) << "velocity 0";
    EXPECT_THAT(
        eventsOf(on(0, 60) + on(96, 60) + off(96, 60) + off(96, 60) + on(0, 60) + off(96, 60)),
        ElementsAre("60@0+2", "60@1+2", "60@3+1"))
        << "first in, first out";
    EXPECT_THAT(eventsOf(on(0, 60) + on(0, 60, 9, 1) + off(96, 60, 1) + off(96, 60)),
                ElementsAre("60@0+2", "60@0+1"))
        << "each channel its own";
    EXPECT_THAT(eventsOf(off(0, 60) + on(0, 60) + endOfTrack(192)), ElementsAre("60@0+2"))
        << "a stray note-off ends nothing, the track ends all";

    const auto tracks = read(header(1, 2) + track(on(96, 60)) + track(off(192, 60))).tracks;
    EXPECT_THAT(shown(tracks.at(0)), ElementsAre("60@1+0"));
    EXPECT_THAT(tracks.at(1), IsEmpty()) << "a track ends no note of another";

    const MidiEvent note = read(file(on(0, 60, 99, 15) + off(1, 60))).tracks.at(0).at(0);
    EXPECT_EQ(note.channel, 15);
    EXPECT_EQ(note.velocity, 99);
}

TEST(StandardMidiFile, ReadsEveryKindOfEvent)
{
    EXPECT_THAT(eventsOf(on(0, 60) + bytes({96, 60, 0, 96, 62, 1, 96, 62, 0})),
                ElementsAre("60@0+1", "62@2+1"))
        << "running status";
    EXPECT_THAT(eventsOf(bytes(
                    {0, 0xA0, 1, 2, 0, 0xB0, 1, 2, 0, 0xC0, 1, 0, 0xD0, 1, 96, 2, 0, 0xE0, 1, 2})),
                ElementsAre("-@0", "-@0", "-@0", "-@0", "-@1", "-@1"));
    EXPECT_THAT(eventsOf(bytes({96, 0xF0, 2, 1, 0xF7, 0, 0xF7, 1, 0xF8, 0, 0xFF, 1, 1, 'x'})),
                ElementsAre("-@1", "-@1", "-@1"))
        << "system exclusive, escape, text";
    EXPECT_THAT(eventsOf(on(0, 60) + bytes({0, 0xFF, 1, 0, 96, 60, 0})),
                ElementsAre("60@0+1", "-@0"))
        << "running status goes on behind a meta event";
    EXPECT_THAT(eventsOf(endOfTrack() + kController), IsEmpty()) << "the mark ends the track";
    EXPECT_THAT(eventsOf(bytes({0xFF, 0xFF, 0xFF, 0x7F, 0xC0, 1})), ElementsAre("-@2.7962e+06"));
}

TEST(StandardMidiFile, StepsOverWhatIsNoAnnouncedTrack)
{
    const std::string one = track(on(0, 60) + off(96, 60));
    for (const auto& [name, file] : std::map<std::string, std::string>{
             {"unknown chunk", header(0, 1) + chunk("XFIH", "abc") + one},
             {"long header", chunk("MThd", bytes({0, 2, 0, 1, 0, 96, 1, 2, 3})) + one},
             {"no end-of-track mark", header(0, 1) + chunk("MTrk", on(0, 60) + off(96, 60))},
             {"junk behind", header(0, 1) + one + "junk"},
             {"one track more", header(1, 1) + one + track(kController)},
             {"RIFF wrapping", "RIFF" + number(0, 4) + "RMIDdata" + number(0, 4) + header(0, 1) +
                                   one + chunk("LIST", "")}})
        EXPECT_THAT(shown(read(file).tracks.at(0)), ElementsAre("60@0+1")) << name;
}

TEST(StandardMidiFile, TurnsBeatsIntoSecondsByTheTempoOfAllTracks)
{
    EXPECT_DOUBLE_EQ(read(file("")).secondsForBeats(3.0), 1.5) << "120 beats a minute";

    const StandardMidiFile two = read(header(1, 2) + track(tempo(576, 250'000)) +
                                      track(tempo(192, 9) + tempo(0, 1'000'000) + tempo(192, 0)));
    EXPECT_DOUBLE_EQ(two.secondsForBeats(2.0), 1.0);
    EXPECT_DOUBLE_EQ(two.secondsForBeats(4.0), 3.0) << "of two tempos at once the last holds";
    EXPECT_DOUBLE_EQ(two.secondsForBeats(6.0), 5.0) << "a tempo of 0 is none";
    EXPECT_DOUBLE_EQ(two.secondsForBeats(10.0), 6.0);
    EXPECT_DOUBLE_EQ(read(file(tempo(0, 1'000'000))).secondsForBeats(2.0), 2.0);
}

TEST(StandardMidiFile, CountsFramesBySeconds)
{
    const auto secondsAt = [](int frames, int ticksPerFrame, std::size_t ticks) {
        const std::size_t division = static_cast<std::size_t>(256 - frames) << 8;
        const StandardMidiFile frameFile =
            read(file(tempo(0, 1'000'000) + on(ticks, 60),
                      division + static_cast<std::size_t>(ticksPerFrame)));
        return frameFile.secondsForBeats(frameFile.tracks.at(0).at(1).beats);
    };
    EXPECT_DOUBLE_EQ(secondsAt(25, 40, 3000), 3.0);
    EXPECT_DOUBLE_EQ(secondsAt(24, 4, 96), 1.0);
    EXPECT_DOUBLE_EQ(secondsAt(30, 80, 1200), 0.5);
    EXPECT_DOUBLE_EQ(secondsAt(29, 100, 3000), 1.001) << "drop frame";
}

TEST(StandardMidiFile, SaysWhatIsWrongAndWhere)
{
    const std::string head = header(0, 1); // 14 bytes; a track's events begin at 22
    EXPECT_EQ(errorOf(""), "f, byte 0: this is not a Standard MIDI File: it has no \"MThd\"");
    EXPECT_EQ(errorOf("RIFFxxxxRMIDdataxxxxMThx"),
              "f, byte 20: this is not a Standard MIDI File: it has no \"MThd\"");
    EXPECT_EQ(errorOf("MThd"), "f, byte 4: the file ends within a chunk's head");
    EXPECT_EQ(errorOf(chunk("MThd", number(1, 4))), "f, byte 12: the header is too short");
    EXPECT_EQ(errorOf(header(3, 1)), "f, byte 8: the format is 3, not 0, 1 or 2");
    EXPECT_EQ(errorOf(header(0, 0)), "f, byte 10: the header announces no track");
    EXPECT_EQ(errorOf(header(0, 1, 0)), "f, byte 12: the division is 0 ticks a quarter note");
    EXPECT_EQ(errorOf(header(0, 1, 0xE700)), "f, byte 12: the division is 0 ticks a frame");
    EXPECT_EQ(errorOf(header(0, 1, 0xE601)), "f, byte 12: a division of 26 frames a second");
    EXPECT_EQ(errorOf(header(1, 2) + track("")),
              "f, byte 26: the file ends after 1 of the 2 tracks it announces");
    EXPECT_EQ(errorOf(head + "MTrk" + number(0xFFFFFFFF, 4) + "abc"),
              "f, byte 14: a chunk of 4294967295 bytes is cut short: only 3 are left in the file");

    const std::string beyond = ": an event runs beyond the end of its track";
    for (const auto& [events, place, message] :
         std::vector<std::tuple<std::string, int, std::string>>{
             {bytes({0}), 23, beyond},
             {bytes({0x81}), 23, beyond},
             {on(0, 60).substr(0, 3), 25, beyond},
             {bytes({0, 0xFF, 1, 5, 'x'}), 26, beyond},
             {bytes({0, 0xF0, 0x83, 0x7F, 'x'}), 26, beyond},
             {bytes({0x80, 0x80, 0x80, 0x80, 0}), 22,
              ": a variable-length quantity is longer than four bytes"},
             {bytes({0, 60, 64}), 23, ": an event without a status, and none runs before it"},
             {bytes({0, 0x90, 60, 0x80}), 25, ": a data byte is wanted, not 0x80"},
             {bytes({0, 0xC0, 0xFF}), 24, ": a data byte is wanted, not 0xFF"},
             {bytes({0, 0xF8}), 23, ": a file cannot hold an event of status 0xF8"},
             {bytes({0, 0xFF, 0x51, 2, 1, 1}), 23, ": a tempo event of 2 bytes instead of 3"}})
        EXPECT_EQ(errorOf(head + chunk("MTrk", events) + track("")),
                  "f, byte " + std::to_string(place) + message);
    EXPECT_EQ(errorOf(header(1, 2) + track(on(0, 60)) + chunk("MTrk", bytes({0, 60, 64}))),
              "f, byte 39: an event without a status, and none runs before it")
        << "the status of a track does not run into the next";
}
