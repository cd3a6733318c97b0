#include "desktop/shell/StatusLine.h"

#include "desktop/console/Drawknob.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/StatusItem.h"
#include "desktop/tuning/TuningPanel.h"
#include "desktop/widgets/deviceText.h"
#include "preferences/Preferences.h"
#include "support/OrganFolder.h"
#include "support/RecordingInstrument.h"

#include <QCheckBox>
#include <QToolButton>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;

namespace {

class StatusLineTest : public testing::Test {
protected:
    StatusLineTest()
    {
        desktop.launch({"none", {}, 0.0, 0});
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop.workspace()));
    }

    /// The visible items as screen readers read them; "!" marks those that stand out.
    std::vector<std::string> items()
    {
        std::vector<std::string> texts;
        for (const auto* item : desktop.workspace().status().findChildren<StatusItem*>())
            if (!item->isHidden())
                texts.push_back((item->icon().isNull() || !item->font().bold() ? "" : "!") +
                                item->accessibleName().toStdString());
        return texts;
    }

    void click(int item)
    {
        desktop.workspace().status().findChildren<StatusItem*>().at(item)->click();
    }

    Desktop desktop;
};

} // namespace

TEST_F(StatusLineTest, ShowsWhatPlaysAndWhatIsMissing)
{
    EXPECT_TRUE(QTest::qWaitFor([&] { return items().size() == 4; }));
    EXPECT_THAT(items(),
                ElementsAre("Electric Grand Piano", "Equal", "No sound output", "!No MIDI input"));
    desktop.application().playing().setTransposition(-2);
    EXPECT_THAT(items(), ElementsAre("Electric Grand Piano", "Equal", "Transposed −2",
                                     "No sound output", "!No MIDI input"));
    desktop.application().playing().usePlainReading();
    EXPECT_EQ(items().at(2), "Plain reading");
    desktop.application().playing().setTransposition(0);
    const std::string name = "An instrument with a name that is too long for the status line";
    Calls calls;
    RecordingInstrument instrument(calls);
    desktop.application().setInstrument(instrument, name);
    EXPECT_EQ(items().at(0), name);
    EXPECT_LT(desktop.workspace().status().minimumSizeHint().width(), 500);
    desktop.workspace().resize(640, 400);
    const auto& item = *desktop.workspace().status().findChild<StatusItem*>();
    const auto isCutOff = [&] { return item.text().endsWith(QChar(0x2026)); };
    EXPECT_TRUE(QTest::qWaitFor(isCutOff));
    desktop.application().setInstrument(instrument, name + "!");
    EXPECT_TRUE(isCutOff()) << "although the item keeps its width";
    desktop.workspace().status().showMessage("A message");
    desktop.application().setInstrument(instrument, name);
    EXPECT_FALSE(item.isVisible()) << "it would cover the message";
    desktop.workspace().status().clearMessage();
    EXPECT_TRUE(item.isVisible());
    desktop.application().selectInstrument(0);
}

TEST_F(StatusLineTest, StopsTheLoadingOfAnOrgan)
{
    const OrganFolder folder;
    folder.writeSine("a.wav", 261.6);
    const auto organ = folder.write("a.organ", "[Organ]\nChurchName=Church\n"
                                               "[Manual001]\nFirstAccessibleKeyMIDINoteNumber=36\n"
                                               "Stop001=1\nStop002=2\n"
                                               "[Stop001]\nName=First\nPipe026=a.wav\n"
                                               "[Stop002]\nName=Second\nPipe026=a.wav\n");
    const auto visibleButton = [&]() -> QToolButton* {
        for (auto* button : desktop.workspace().status().findChildren<QToolButton*>())
            if (button->text() == "Stop Loading" && !button->isHidden())
                return button;
        return nullptr;
    };
    EXPECT_EQ(visibleButton(), nullptr);
    desktop.open({QString::fromStdString(organ.string())});
    ASSERT_NE(visibleButton(), nullptr);
    visibleButton()->click();
    EXPECT_EQ(visibleButton(), nullptr);
    EXPECT_EQ(desktop.workspace().status().currentMessage(),
              "a.organ: 1 stop was not loaded; see Import Report in the Instruments window");
    std::vector<std::string> states;
    for (const auto* knob : desktop.workspace().findChildren<Drawknob*>())
        states.push_back(knob->accessibleDescription().toStdString());
    EXPECT_THAT(states, ElementsAre("", "This stop is not loaded, because the loading was "
                                        "stopped."));
}

TEST_F(StatusLineTest, LeadsToWhatItShows)
{
    Workspace& workspace = desktop.workspace();
    workspace.tuningPanel().parentWidget()->hide();
    click(1);
    EXPECT_TRUE(workspace.tuningPanel().isAncestorOf(workspace.focusWidget()));
    click(0);
    EXPECT_TRUE(workspace.instrumentPanel().isAncestorOf(workspace.focusWidget()));
    click(3);
    EXPECT_TRUE(desktop.preferencesWindow().findChild<QWidget*>("OutputStatus")->isVisible());
    click(4);
    EXPECT_TRUE(desktop.preferencesWindow().findChild<QWidget*>("PlainReading")->isVisible());
}

TEST_F(StatusLineTest, ArrowsMoveBetweenStopsThatTabHasReached)
{
    Calls calls;
    RecordingInstrument organ(calls);
    desktop.application().setInstrument(organ, "Organ");
    desktop.workspace().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    const auto names = desktop.instrumentPanel().findChildren<QCheckBox*>();
    names[0]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(names[0], Qt::Key_Down);
    EXPECT_TRUE(names[1]->hasFocus());
    desktop.application().selectInstrument(0);
}

TEST(StatusItem, ShowsAShortTextWholeWhereThereIsRoom)
{
    const QString text = "Werckmeister III (1691)";
    StatusItem item("Tuning");
    for (const double size : {9.0, 10.0, 11.0, 12.0, 13.5, 15.0, 16.5}) {
        QFont type = item.font();
        type.setPointSizeF(size);
        item.setFont(type);
        item.show(text, {});
        item.resize(item.sizeHint());
        EXPECT_EQ(item.text(), text) << size;
    }
}

TEST(DeviceText, NamesDevicesAsPeopleDo)
{
    for (const auto& [name, text] : {
             std::pair("a2j:USB Keystation [20] (capture): USB Keystation MIDI 1",
                       "USB Keystation"),
             {"Midi-Bridge:Keystation 49:(capture_0) Keystation 49 MIDI 1", "Keystation 49"},
             {"system:midi_capture_2", "MIDI port 2"},
             {"jack-keyboard:midi_out", "jack-keyboard"},
             {"Arturia KeyStep 32", "Arturia KeyStep 32"},
             {"Launchkey: DAW", "Launchkey: DAW"},
             {"[1]", "[1]"},
         })
        EXPECT_EQ(deviceText(name), text);
}

} // namespace velmora
