#include "desktop/instruments/InstrumentPanel.h"

#include "app/AppDelegate.h"
#include "app/LiveDevice.h"
#include "midi/messages.h"
#include "sound/ALInstrument.h"

#include <QCoreApplication>
#include <QSlider>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace velmora {

TEST(InstrumentPanel, ShowsVolumesWhileAMidiThreadSetsThem)
{
    ALInstrument organ; // its stops have no samples, so it never calls OpenAL
    organ.appendStop("Flute");
    organ.appendStop("Reed");
    AppDelegate application;
    application.tunings().addBuiltins();
    InstrumentPanel panel(application);
    application.setInstrument(organ, "Organ");

    LiveDevice keyboard(application, 0);
    const auto send = [&keyboard](std::uint8_t volume) {
        for (const auto& [number, value] :
             {std::pair(midi::kChannelVolume, volume), {midi::kExpression, std::uint8_t{64}}})
            keyboard.receive(std::array{midi::kControlChange, number, value}, 0.0);
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
    EXPECT_NEAR(sliders[0]->value(), 100.0 * 104 / 127, 0.5);
    EXPECT_NEAR(sliders[1]->value(), 100.0 * 64 / 127, 0.5);
}

} // namespace velmora
