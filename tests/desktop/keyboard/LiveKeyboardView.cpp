#include "desktop/keyboard/KeyboardView.h"

#include "app/AppDelegate.h"
#include "midi/messages.h"
#include "midi/midiRead.h"
#include "sequencer/SequenceDocument.h"
#include "sound/ALInstrument.h"

#include <QtTest>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace velmora {

TEST(LiveKeyboardView, PaintsWhileAMidiThreadPlays)
{
    ALInstrument organ;
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(organ, "Organ");
    application.tunings().select("Dynamic");
    SequenceDocument document(application.player());
    KeyboardView view(application, application.player().liveKeys());
    view.setDocument(&document.practice());
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    std::size_t frames = 0;
    QObject::connect(&view, &QOpenGLWidget::frameSwapped, [&] { ++frames; });
    QObject::connect(&application, &AppDelegate::midiInputReceived, &view,
                     &KeyboardView::midiInput);

    std::atomic<bool> isDone{false};
    std::thread device([&] {
        for (int i = 0; i < 2000; ++i) {
            const auto key = static_cast<std::uint8_t>(36 + i / 2 % 48);
            const auto status = i % 2 == 0 ? midi::kNoteOn : midi::kNoteOff;
            const std::uint8_t bytes[] = {status, key, 100};
            const MidiPacket packet = bytes;
            midiRead({&packet, 1}, application);
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
        isDone = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone.load(); }, 60'000));
    device.join();
    EXPECT_GT(frames, 2);
}

} // namespace velmora
