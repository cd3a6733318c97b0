// Recording as a musician has it: from a MIDI port into a file.

#include "app/AppDelegate.h"
#include "base/Clock.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceFile.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <mutex>
#include <thread>

namespace {

constexpr double kStepsPerRecordedSecond = 15.0;
constexpr double kTick = kStepsPerRecordedSecond / 1024.0;

/// A message, and the times before and after it was taken in: on a busy machine they differ.
struct Arrival {
    double before, after;
    std::vector<std::uint8_t> message;
};

/// Whether a number of steps is what lies between two arrivals, but for some ticks.
void expectBetween(const Arrival& first, const Arrival& second, double steps, double ticks)
{
    EXPECT_GE(steps, (second.before - first.after) * kStepsPerRecordedSecond - ticks * kTick);
    EXPECT_LE(steps, (second.after - first.before) * kStepsPerRecordedSecond + ticks * kTick);
}

/// Keeps the event loop going, as late as a window makes it.
void runFor(double seconds)
{
    for (const double end = getTime() + seconds; getTime() < end;) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

} // namespace

TEST(RecordingPath, KeepsWhatIsPlayedWithinATickOfItsArrival)
{
    const JackServer server;
    MidiSource piano("keyboard", {"out"});
    AppDelegate app;
    std::mutex mutex;
    std::vector<Arrival> arrivals;
    MidiInputs inputs([&](MidiPacket packet) {
        const std::lock_guard lock(mutex);
        const double before = getTime();
        midiRead({&packet, 1}, app);
        arrivals.push_back({before, getTime(), {packet.begin(), packet.end()}});
    });
    if (inputs.api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer, which goes before JACK";
    SequenceDocument document(app);
    const SequenceClock clock(document);
    document.record();
    for (std::uint8_t i = 0; i < 24; ++i) { // each held into the next
        piano.send(0, {0x90, static_cast<std::uint8_t>(48 + i), static_cast<std::uint8_t>(20 + i)});
        runFor(0.020 + 0.0031 * i);
        if (i > 0)
            piano.send(0, {0x80, static_cast<std::uint8_t>(47 + i), 0});
        runFor(0.030);
    }
    piano.send(0, {0x80, 71, 0});
    const auto haveAllArrived = [&] {
        const std::lock_guard lock(mutex);
        return arrivals.size() == 48;
    };
    for (int i = 0; i < 100 && !haveAllArrived(); ++i)
        runFor(0.1);
    runFor(0.1);
    document.record();

    const QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath("take.mid").toStdString();
    ASSERT_TRUE(document.saveToURL(file, kMidiFileType, SequenceDocument::SaveOperation::SaveAs));
    QProcess info;
    info.start(VELMORA_PROGRAM, {"info", "--json", QString::fromStdString(file)});
    ASSERT_TRUE(info.waitForFinished(20'000));
    const auto told = nlohmann::json::parse(info.readAllStandardOutput().toStdString());
    const auto& kept = (told.is_array() ? told.at(0) : told).at("notes");
    const auto& notes = document.getSequence().notes();
    ASSERT_EQ(notes.size(), 24);
    ASSERT_EQ(kept.size(), 24);

    const std::lock_guard lock(mutex);
    const auto arrival = [&](std::uint8_t status, std::uint32_t key) {
        return *std::find_if(arrivals.begin(), arrivals.end(), [&](const auto& each) {
            return each.message[0] == status && each.message[1] == key;
        });
    };
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const Note& note = notes[i];
        const Arrival start = arrival(0x90, note.key);
        EXPECT_EQ(note.key, 48 + i);
        EXPECT_NEAR(note.velocity, (20.0 + static_cast<double>(i)) / 127.0, 1e-6);
        expectBetween(arrivals.front(), start, note.start - notes.front().start, 1.01);
        expectBetween(start, arrival(0x80, note.key), note.length, 2.01);
        EXPECT_EQ(kept[i]["key"], note.key);
        EXPECT_NEAR(kept[i]["start"].get<double>(), note.start, 1.0 / 512.0);
        EXPECT_NEAR(kept[i]["length"].get<double>(), note.length, 1.0 / 512.0);
    }
}
