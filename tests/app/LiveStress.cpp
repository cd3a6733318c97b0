// Runs all threads of live playing at once.

#include "app/AppDelegate.h"
#include "audio/Synthesizer.h"
#include "sequencer/SequenceDocument.h"
#include "support/Bank.h"
#include "support/Stereo.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace velmora {

namespace {

void strikeKeys(LiveInput& input)
{
    std::mt19937 random(1);
    for (int i = 0; i < 4000; ++i) {
        const int key = static_cast<int>(random() % 128);
        input.keyOn(key, 0.5F);
        if (i % 16 == 0)
            std::this_thread::sleep_for(std::chrono::microseconds(500));
        input.keyOff(i % 3 == 0 ? 127 - key : key);
    }
}

/// Sends random key and controller messages, and then random bytes.
void sendMidi(LiveInput& input)
{
    std::mt19937 random(7);
    const auto byte = [&](unsigned lowest, unsigned highest) {
        return static_cast<std::uint8_t>(lowest + random() % (highest - lowest + 1));
    };
    for (int i = 0; i < 20000; ++i) {
        std::vector<std::uint8_t> bytes{byte(0x80, 0xBF), byte(0, 127), byte(0, 127)};
        if (i >= 10000) {
            bytes.resize(byte(0, 12));
            std::ranges::generate(bytes, [&] { return byte(0, 255); });
        }
        const MidiPacket packet = bytes;
        midiRead({&packet, 1}, input);
        if (i % 32 == 0)
            std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

} // namespace

TEST(LiveStress, LeavesNothingSoundingAfterAllThreadsHaveRun)
{
    AppDelegate app;
    app.tunings().addBuiltins();
    app.tunings().put(TuningDocument::makeBuiltin("Dynamic"));
    std::vector<std::pair<Instrument*, Synthesizer*>> players;
    for (int i = 0; i < 2; ++i) {
        auto synthesizer = std::make_unique<Synthesizer>(48000.0, std::vector{kBank});
        players.emplace_back(nullptr, synthesizer.get());
        app.makeMIDIPlayer(std::move(synthesizer));
        players.back().first = app.instruments().back()->instrument();
    }

    std::atomic<int> playing{2};
    std::thread mouse([&] {
        strikeKeys(app);
        --playing;
    });
    std::thread device([&] {
        sendMidi(app);
        --playing;
    });
    std::thread audio([&] {
        while (playing > 0) {
            for (const auto& [instrument, synthesizer] : players)
                rendered(*synthesizer, 128);
        }
    });
    SequenceDocument document(app.player());
    QObject::connect(&app, &AppDelegate::midiInputReceived,
                     [&] { document.practice().midiInput(); });
    constexpr std::array kTunings = {"Equal", "Quartercomma Meantone", "Dynamic"};
    for (std::size_t i = 0; playing > 0; ++i) {
        app.player().fade();
        app.tunings().select(kTunings[i % kTunings.size()]);
        app.setInstrument(*players[i / 7 % 2].first, "");
        QCoreApplication::processEvents();
        // Alternates between recording and playing.
        if (i % 100 == 0)
            document.recorder().record();
        else if (i % 100 == 50)
            document.transport().play();
        document.transport().tick();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    EXPECT_GT(document.sequence().notes().size(), 10U) << "the keys were recorded";
    document.transport().stop();
    for (std::thread* thread : {&mouse, &device, &audio})
        thread->join();

    for (const auto& [instrument, synthesizer] : players)
        EXPECT_GT(peak(rendered(*synthesizer, 4800).left), 0.0F)
            << "some keys are still held on each";
    for (int key = 0; key < 128; ++key)
        app.keyOff(key);
    for (const auto& [instrument, synthesizer] : players) {
        rendered(*synthesizer, std::size_t{4} * 48000); // released keys die away
        EXPECT_EQ(peak(rendered(*synthesizer, 4800).left), 0.0F);
    }
}

} // namespace velmora
