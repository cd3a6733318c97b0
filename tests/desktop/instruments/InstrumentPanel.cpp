#include "desktop/instruments/InstrumentPanel.h"

#include "app/AppDelegate.h"
#include "midi/messages.h"
#include "midi/midiRead.h"
#include "sound/ALInstrument.h"

#include <QCoreApplication>
#include <QSlider>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace velmora {

TEST(InstrumentPanel, ShowsVolumesWhileAMidiThreadSetsThem)
{
    ALInstrument organ; // its stops have no samples, so it never calls OpenAL
    organ.appendStop("Flute");
    organ.appendStop("Reed");
    AppDelegate application;
    application.makeBuiltinTunings();
    InstrumentPanel panel(application);
    application.setInstrument(organ, "Organ");

    const auto send = [&application](std::uint8_t volume) {
        const std::uint8_t bytes[] = {midi::kControlChange, midi::kChannelVolume, volume,
                                      midi::kControlChange, midi::kExpression,    64};
        const MidiPacket packet = bytes;
        midiRead({&packet, 1}, application);
    };
    std::atomic<bool> isDone{false};
    std::thread device([&] {
        for (int i = 0; i < 1000; ++i) {
            send(static_cast<std::uint8_t>(i % 128));
            if (i % 16 == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        isDone = true;
    });
    while (!isDone) {
        application.setInstrument(organ, "Organ"); // reads every volume
        QCoreApplication::processEvents();
    }
    device.join();
    // Before this, the panel may have read the volumes after the last message: twice the gains.
    send(104);
    QCoreApplication::processEvents();
    const auto sliders = panel.findChildren<QSlider*>();
    ASSERT_EQ(sliders.size(), 2);
    EXPECT_NEAR(sliders[0]->value(), 1000.0 * 104 / 127, 0.5);
    EXPECT_NEAR(sliders[1]->value(), 1000.0 * 64 / 127, 0.5);
}

} // namespace velmora
