// Recording from end to end: from a MIDI port to a file.

#include "app/AppDelegate.h"
#include "base/Clock.h"
#include "midi/messages.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceFile.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <thread>

namespace velmora {

namespace {

/// Runs the event loop with delays like those of a window that paints.
void runFor(double seconds)
{
    for (const double end = getTime() + seconds; getTime() < end;) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

} // namespace

TEST(RecordingPath, RecordsEachKeyWithinATickOfItsArrival)
{
    const JackServer server;
    MidiSource piano("keyboard", {"out"});
    AppDelegate app;
    const MidiInputs inputs(app.midiDevices());
    if (inputs.services() != "JACK")
        GTEST_SKIP() << "this machine has an ALSA sequencer with other devices";
    const LiveKeys& keys = app.player().liveKeys();
    SequenceDocument document(app.player());
    const SequenceClock clock(document.transport());
    document.recorder().record();
    runFor(0.05); // so that the first key is struck while the recording waits
    for (std::uint8_t i = 0; i < 24; ++i) { // each held until after the next is pressed
        piano.send(0, {midi::kNoteOn, static_cast<std::uint8_t>(48 + i),
                       static_cast<std::uint8_t>(20 + i)});
        runFor(0.020 + 0.0031 * i);
        if (i > 0)
            piano.send(0, {midi::kNoteOff, static_cast<std::uint8_t>(47 + i), 0});
        runFor(0.030);
    }
    piano.send(0, {midi::kNoteOff, 71, 0});
    for (int i = 0; i < 100 && keys.events().end() < 48; ++i)
        runFor(0.1);
    runFor(0.1);
    document.recorder().record();

    const QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath("take.mid").toStdString();
    ASSERT_TRUE(
        document.save(file, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::SaveAs));
    SequenceDocument kept(app.player());
    kept.read(file);
    const auto& notes = kept.sequence().notes();
    ASSERT_EQ(notes.size(), 24);
    std::array<double, kKeys> pressed{}, released{};
    std::uint64_t place = 0;
    while (const auto event = keys.events().read(place))
        (event->isPress ? pressed : released)[event->key] = event->time;
    constexpr double kStepsPerRecordedSecond = 16.0;
    constexpr double kStepsOfTick = kStepsPerRecordedSecond / 1024.0, kTickOfFile = 1.0 / 512.0;
    for (unsigned i = 0; i < 24; ++i) {
        const Note& note = notes[i];
        EXPECT_EQ(note.key, 48 + i);
        EXPECT_NEAR(note.velocity, (20.0 + i) / 127.0, 1e-6);
        EXPECT_NEAR(note.start, (pressed[note.key] - pressed[48]) * kStepsPerRecordedSecond,
                    kStepsOfTick + kTickOfFile);
        EXPECT_NEAR(note.length, (released[note.key] - pressed[note.key]) * kStepsPerRecordedSecond,
                    kStepsOfTick + kTickOfFile);
    }
}

} // namespace velmora
