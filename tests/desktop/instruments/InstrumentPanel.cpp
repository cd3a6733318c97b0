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

    std::atomic<bool> isDone{false};
    std::thread device([&] {
        for (int i = 0; i <= 1000; ++i) {
            const auto value = static_cast<std::uint8_t>(i % 128);
            const std::uint8_t bytes[] = {midi::kControlChange, midi::kChannelVolume, value,
                                          midi::kControlChange, midi::kExpression,    64};
            const MidiPacket packet = bytes;
            midiRead({&packet, 1}, application);
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
    QCoreApplication::processEvents();
    const auto sliders = panel.findChildren<QSlider*>();
    ASSERT_EQ(sliders.size(), 2);
    EXPECT_NEAR(sliders[0]->value(), 1000.0 * (1000 % 128) / 127, 0.5)
        << "the last value that arrived";
    EXPECT_NEAR(sliders[1]->value(), 1000.0 * 64 / 127, 0.5);
}

} // namespace velmora
