#include "app/tunedMidi.h"

#include "app/AppDelegate.h"
#include "midi/MidiFileEvents.h"
#include "support/MidiBytes.h"
#include "support/RecordingInstrument.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::FieldsAre;

/// A note as a device plays it.
struct TunedNote {
    double beat;
    int program; ///< -1 for drums.
    double place;
};

std::vector<TunedNote> notesIn(const MidiFileEvents& file)
{
    std::array<int, midi::kChannels> programs{}, bends{};
    std::vector<TunedNote> notes;
    for (const FileEvent& event : file.tracks.at(0).events) {
        const std::size_t channel = event.status & midi::kChannelMask;
        const int kind = event.status & midi::kKindMask;
        if (kind == midi::kProgramChange)
            programs.at(channel) = static_cast<unsigned char>(event.data[0]);
        else if (kind == midi::kPitchBend)
            bends.at(channel) = event.data[0] + 128 * event.data[1] - 8192;
        else if (kind == midi::kNoteOn && event.status != midi::kMetaEvent)
            notes.push_back(
                {std::round(100.0 * static_cast<double>(event.tick) / file.header.ticksPerBeat) /
                     100.0,
                 channel == 9 ? -1 : programs.at(channel),
                 event.data[0] + bends.at(channel) / 4096.0});
    }
    return notes;
}

/// Two voices that play the same E, one of which goes on with another program after the drum, at
/// half the tempo.
std::string duet()
{
    const std::string first = midi::tempo(0, 500000) + midi::bytes({0, 0xC0, 73, 0, 0xC1, 42}) +
                              midi::on(0, 64) + midi::on(0, 64, 90, 1) + midi::off(48, 64) +
                              midi::off(0, 64, 1);
    const std::string second = midi::on(48, 36, 90, 9) + midi::off(48, 36, 9) +
                               midi::tempo(48, 1000000) + midi::bytes({0, 0xC1, 60}) +
                               midi::on(96, 64, 90, 1) + midi::off(96, 64, 1);
    return midi::file(first + second);
}

} // namespace

TEST(TunedMidi, KeepsTheProgramsAndTheTemposOfThePiece)
{
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.filePath("duet.mid").toStdString();
    std::ofstream(path, std::ios::binary) << duet();
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.tunings().select("Quartercomma Meantone");
    application.setInstrument(instrument, "Recorder");
    const auto fill = [&](SequenceDocument& document) { document.read(path); };

    const std::string bytes = writeTunedMidi(application, fill, {}).bytes;
    const MidiFileEvents file = readMidiFileEvents(std::as_bytes(std::span(bytes)));
    const auto e = testing::DoubleNear(63.863, 0.02);
    EXPECT_THAT(notesIn(file), ElementsAre(FieldsAre(0.0, 73, e), FieldsAre(0.0, 42, e),
                                           FieldsAre(1.0, -1, 36.0), FieldsAre(3.0, 60, e)));
    EXPECT_DOUBLE_EQ(file.tempoMap.secondsForBeats(3.0), 2.0);

    const RenderOptions twice{.speed = 2.0,
                              .loop = RenderLoop{.start = 0.0, .end = 32.0, .times = 2}};
    const std::string both = writeTunedMidi(application, fill, twice).bytes;
    const MidiFileEvents passes = readMidiFileEvents(std::as_bytes(std::span(both)));
    const auto notes = notesIn(passes);
    ASSERT_EQ(notes.size(), 8U);
    EXPECT_THAT(notes[7], FieldsAre(7.0, 60, e));
    EXPECT_DOUBLE_EQ(passes.tempoMap.secondsForBeats(7.0), 2.5);
}

} // namespace velmora
