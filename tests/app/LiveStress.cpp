// All threads of live playing at once.

#include "app/AppDelegate.h"
#include "platform/Synthesizer.h"
#include "sound/KeyTables.h"
#include "support/Bank.h"
#include "support/Stereo.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace {

constexpr double kRate = 48000.0;

bool anyKeyHeld()
{
    return std::ranges::any_of(noteStates, [](const auto& state) { return state != 0; });
}

class LiveStress : public testing::Test {
protected:
    LiveStress()
    {
        app.makeBuiltinTunings();
        app.putTuning(TuningDocument::initBuiltin("Dynamic"));
        for (auto& synthesizer : synthesizers) {
            auto made = std::make_unique<Synthesizer>(kRate, std::vector{kBank});
            synthesizer = made.get();
            app.makeMIDIPlayer(std::move(made));
            instruments.push_back(app.getInstrument());
        }
    }

    void receive(std::span<const std::uint8_t> bytes) { midiRead({&bytes, 1}, app); }

    /// A key stays on the instrument that it was pressed on, so it is released on each.
    void releaseAll()
    {
        for (Instrument* instrument : instruments) {
            app.setInstrument(*instrument);
            for (int key = 0; key < 128; ++key)
                app.keyOff(key);
        }
        QCoreApplication::processEvents();
    }

    void expectSilence()
    {
        EXPECT_FALSE(anyKeyHeld());
        for (Synthesizer* synthesizer : synthesizers) {
            rendered(*synthesizer, static_cast<std::size_t>(4 * kRate)); // what dies away
            const Stereo after = rendered(*synthesizer, 4800);
            EXPECT_EQ(std::max(peak(after.left), peak(after.right)), 0.0F);
        }
    }

    AppDelegate app;
    std::array<Synthesizer*, 2> synthesizers{};
    std::vector<Instrument*> instruments;
};

} // namespace

TEST_F(LiveStress, ThreadsThatPlayRetuneAndRenderLeaveNothingBehind)
{
    constexpr int kStrokes = 4000, kChanges = 400;
    std::atomic<int> players{2};
    const auto play = [&](unsigned seed, auto&& press, auto&& release) {
        std::mt19937 random(seed);
        for (int i = 0; i < kStrokes; ++i) {
            const auto key = static_cast<std::uint8_t>(random() % 128);
            press(key);
            if (i % 16 == 0)
                std::this_thread::sleep_for(std::chrono::microseconds(500));
            release(static_cast<std::uint8_t>(i % 3 == 0 ? random() % 128 : key));
        }
        --players;
    };
    std::thread mouse(
        play, 1, [&](int key) { app.keyOn(key, 0.5F); }, [&](int key) { app.keyOff(key); });
    std::thread device(
        play, 2,
        [&](std::uint8_t key) {
            receive(std::array<std::uint8_t, 6>{0x90, key, 90, 0xB0, 7, key});
        },
        [&](std::uint8_t key) {
            receive(std::array<std::uint8_t, 3>{0x80, key, 0});
        });
    std::atomic<bool> rendering{true};
    std::thread audio([&] {
        while (rendering) {
            for (Synthesizer* synthesizer : synthesizers)
                rendered(*synthesizer, 128);
        }
    });
    constexpr std::array kTunings = {"Equal", "Quartercomma Meantone", "Dynamic"};
    for (std::size_t i = 0; players > 0 || i < kChanges; ++i) {
        app.loop();
        app.selectTuning(kTunings[i % kTunings.size()]);
        app.setInstrument(*instruments[i / 7 % 2]);
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    mouse.join();
    device.join();
    releaseAll();
    rendering = false;
    audio.join();
    expectSilence();
}

TEST_F(LiveStress, RandomPacketsLeaveNoKeySounding)
{
    std::mt19937 random(7);
    const auto byte = [&](unsigned lowest, unsigned highest) {
        return static_cast<std::uint8_t>(lowest + random() % (highest - lowest + 1));
    };
    for (int i = 0; i < 20000; ++i) {
        // Messages of keys and controllers; then whatever comes.
        std::vector<std::uint8_t> packet{byte(0x80, 0xBF), byte(0, 127), byte(0, 127)};
        if (i >= 10000) {
            packet.resize(byte(0, 12));
            for (std::uint8_t& each : packet)
                each = byte(0, 255);
        }
        receive(packet);
        if (i % 100 == 0)
            rendered(*synthesizers[1], 128);
    }
    EXPECT_TRUE(anyKeyHeld());
    releaseAll();
    expectSilence();
}
