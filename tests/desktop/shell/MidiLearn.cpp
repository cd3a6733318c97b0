#include "app/LiveDevice.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "preferences/Preferences.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>
#include <QtTest>
#include <gtest/gtest.h>

namespace velmora {

namespace {

class MidiLearnTest : public testing::Test {
protected:
    MidiLearnTest()
    {
        desktop.launch();
        desktop.application().waitForBank();
        desktop.instrumentPanel().show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop.instrumentPanel()));
        slider = desktop.instrumentPanel().findChild<QSlider*>();
    }

    ~MidiLearnTest() override
    {
        for (const char* key :
             {"LearnedControls", "MasterVolume", "Transposition", "VelocityCurve", "PlainReading"})
            resetPref(key);
    }

    void send(std::vector<std::uint8_t> message)
    {
        device.receive(message, getTime());
        QApplication::processEvents();
    }

    /// Chooses an entry of a widget's context menu, as with the menu key.
    void choose(QWidget& widget, const QString& entry)
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5},
                                widget.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&widget, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().remove('&') == entry && action->isEnabled())
                action->trigger();
        menu->close();
    }

    /// The box that says that Velmora waits for a controller; null if it does not wait.
    static QMessageBox* waiting()
    {
        return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    }

    static std::string toolTip(QWidget& widget)
    {
        QHelpEvent event(QEvent::ToolTip, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&widget, &event);
        return QToolTip::text().toStdString();
    }

    Desktop desktop;
    LiveDevice device{desktop.application(), 0};
    QSlider* slider = nullptr;
};

} // namespace

TEST_F(MidiLearnTest, ASliderLearnsTheNextController)
{
    QSlider& volume = *slider;
    choose(volume, "Learn MIDI Controller…");
    ASSERT_NE(waiting(), nullptr);
    QTest::keyClick(waiting(), Qt::Key_Escape);
    EXPECT_EQ(waiting(), nullptr);
    send({0xB2, 21, 64});
    send({0xB2, 21, 63});
    EXPECT_EQ(volume.value(), 100) << "Escape ends the waiting";

    choose(volume, "Learn MIDI Controller…");
    send({0xB2, 21, 64});
    EXPECT_EQ(waiting(), nullptr);
    send({0xB2, 21, 0});
    EXPECT_EQ(volume.value(), 0);
    EXPECT_EQ(toolTip(volume), "Volume\nMIDI controller 21 on channel 3");
    choose(volume, "Forget MIDI Controller");
    send({0xB2, 21, 127});
    EXPECT_EQ(volume.value(), 0);
    EXPECT_EQ(toolTip(volume), "Volume");
    choose(volume, "Learn MIDI Controller…");
    send({0x90, 36, 1});
    send({0x90, 36, 1});
    EXPECT_EQ(volume.value(), 100) << "a key switches it";
}

TEST_F(MidiLearnTest, TheMasterVolumeLearnsAController)
{
    PreferencesWindow& window = desktop.preferencesWindow();
    window.show();
    auto& volume = *window.findChild<QSlider*>("MasterVolume");
    choose(volume, "Learn MIDI Controller…");
    send({0xB0, 22, 100});
    EXPECT_EQ(volume.value(), 100) << "is not moved yet";
    send({0xB0, 22, 32});
    EXPECT_EQ(volume.value(), 25);
    EXPECT_EQ(getPrefInt("MasterVolume"), 25);
    EXPECT_NEAR(desktop.application().engine().volume(), 0.25F, 0.01F);
    choose(volume, "Learn MIDI Controller…");
    send({0x90, 36, 1});
    send({0x90, 36, 1});
    EXPECT_EQ(volume.value(), 0);
    send({0x90, 36, 1});
    EXPECT_EQ(volume.value(), 100) << "a key switches it";
}

TEST_F(MidiLearnTest, ButtonsLearnKeys)
{
    SequencePage& page = desktop.pages().create();
    const Transport& transport = page.document().transport();
    const auto press = [&](std::uint8_t key) {
        send({0x90, key, 1});
        send({0x80, key, 0});
    };
    const auto teach = [&](const char* button, const char* entry, std::uint8_t key) {
        for (QToolButton* one : desktop.workspace().findChildren<QToolButton*>())
            if (one->text() == button)
                choose(*one, entry);
        press(key);
    };
    teach("Record", "Learn MIDI Controller for Record…", 36);
    teach("Play", "Learn MIDI Controller for Play…", 37);
    teach("Play", "Learn MIDI Controller for Stop…", 38);
    teach("Silence Everything", "Learn MIDI Controller…", 39);
    EXPECT_EQ(transport.mode(), Transport::Mode::Stopped);
    press(36);
    EXPECT_EQ(transport.mode(), Transport::Mode::Recording);
    press(38);
    EXPECT_EQ(transport.mode(), Transport::Mode::Stopped);
    press(38);
    press(37);
    EXPECT_EQ(transport.mode(), Transport::Mode::Playing);
    press(38);
    EXPECT_EQ(transport.mode(), Transport::Mode::Stopped);
    const LiveKeys& keys = desktop.application().player().liveKeys();
    EXPECT_EQ(keys.events().end(), 0) << "no key sounded";
    send({0x90, 60, 127});
    EXPECT_NE(keys.state(60), 0);
    press(37);
    press(39);
    EXPECT_EQ(keys.state(60), 0);
    EXPECT_EQ(transport.mode(), Transport::Mode::Stopped) << "silence stops the sequence too";
    page.settle();
}

TEST_F(MidiLearnTest, ThePanelAndThePreferencesShowTheSameSettings)
{
    auto& preferences = desktop.preferencesWindow();
    preferences.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&preferences));
    const auto* transposition = desktop.instrumentPanel().findChild<QLabel*>("Transposition");
    preferences.findChild<QSpinBox*>("Transposition")->setValue(3);
    EXPECT_EQ(transposition->text(), "+3");
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&desktop.workspace(), Qt::Key_Down,
                        Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(transposition->text(), "−1");
    auto& touch = *desktop.instrumentPanel().findChild<QComboBox*>("VelocityCurve");
    touch.setFocus();
    QTest::keyClick(&touch, Qt::Key_End);
    EXPECT_EQ(preferences.findChild<QSpinBox*>("Transposition")->value(), -1);
    EXPECT_EQ(preferences.findChild<QComboBox*>("VelocityCurve")->currentIndex(), 3);
    send({0xC0, 19});
    EXPECT_EQ(
        desktop.instrumentPanel().findChild<QTreeWidget*>()->currentItem()->text(0).toStdString(),
        "20 Church Organ");
    preferences.findChild<QAbstractButton*>("PlainReading")->click();
    EXPECT_FALSE(touch.isEnabled()) << "the plain reading ignores the touch";
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    QTest::keyClick(&desktop.workspace(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(transposition->text(), "−1");
    send({0x90, 60, 127});
    EXPECT_NE(desktop.application().player().liveKeys().state(60), 0) << "and the transposition";
}

} // namespace velmora
