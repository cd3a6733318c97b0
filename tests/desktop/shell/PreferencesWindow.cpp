#include "desktop/shell/PreferencesWindow.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Color.h"
#include "preferences/Preferences.h"
#include "support/Bank.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryFile>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

namespace {

class PreferencesWindowTest : public testing::Test {
protected:
    PreferencesWindowTest()
    {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    ~PreferencesWindowTest() override
    {
        for (const char* key : {"KeyWidth", "KeyRangeLo", "KeyRangeHi", "KeyColor", "KeyNames",
                                "Output", "OutputPeriod", "MasterVolume"})
            resetPref(key);
        setPrefString("GMBank", kBank.string());
    }

    /// Replaces the text of a spin box and takes the focus from it.
    void type(const char* key, const char* text)
    {
        auto* box = window.findChild<QSpinBox*>(key);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        box->clearFocus();
    }

    void click(const char* button)
    {
        QTest::mouseClick(window.findChild<QAbstractButton*>(button), Qt::LeftButton);
    }

    AppDelegate app;
    Commands commands;
    PreferencesWindow window{app, commands};
    QSignalSpy changed{&window, &PreferencesWindow::changed};
};

} // namespace

TEST_F(PreferencesWindowTest, CorrectsTypedNumbers)
{
    const struct {
        const char* key;
        const char* typed;
        int stored;
        const char* shown;
    } rows[] = {
        {"KeyWidth", "20", 20, "20 px"},         {"KeyWidth", "1", 4, "4 px"},
        {"KeyRangeLo", "36", 36, "C2 (36)"},     {"KeyRangeLo", "c#3", 49, "C♯3 (49)"},
        {"KeyRangeHi", "60", 60, "C4 (60)"},     {"KeyRangeHi", "40", 50, "D3 (50)"},
        {"KeyRangeHi", "200", 127, "G9 (127)"},  {"KeyRangeHi", "H9", 127, "G9 (127)"},
        {"KeyRangeLo", "127", 126, "F♯9 (126)"},
    };
    for (const auto& row : rows) {
        changed.clear();
        type(row.key, row.typed);
        EXPECT_EQ(getPrefInt(row.key), row.stored) << row.typed;
        EXPECT_EQ(window.findChild<QSpinBox*>(row.key)->text(), row.shown) << row.typed;
        EXPECT_EQ(changed.size(), QString("H9") == row.typed ? 0 : 1)
            << row.typed << ": one change at most";
    }
}

TEST_F(PreferencesWindowTest, StoresColorsAndCheckBoxesImmediately)
{
    QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return !getPrefBool("KeyNames"); }));
    QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
    auto* button = window.findChild<QAbstractButton*>("KeyColor");
    EXPECT_TRUE(QTest::qWaitFor([&] { return button->isVisible(); }));
    QTest::mouseClick(button, Qt::LeftButton);
    auto* dialog = button->findChild<QColorDialog*>();
    dialog->setCurrentColor(Qt::blue);
    dialog->accept();
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(Color("KeyColor").toQColor(), QColor(Qt::blue));
    click("ResetColors");
    EXPECT_EQ(changed.size(), 3);
    EXPECT_EQ(Color("KeyColor").toQColor(), QColor(Qt::green));
}

TEST_F(PreferencesWindowTest, StoresTheChosenBank)
{
    QTemporaryFile bank;
    ASSERT_TRUE(bank.open());
    QSignalSpy bankChanged(&window, &PreferencesWindow::bankChanged);
    click("ChooseBank");
    auto* dialog = window.findChild<QFileDialog*>();
    dialog->selectFile(bank.fileName());
    static_cast<QDialog*>(dialog)->accept();
    EXPECT_EQ(getPrefString("GMBank"), bank.fileName().toStdString());
    click("DefaultBank");
    EXPECT_EQ(getPrefString("GMBank"), "");
    EXPECT_EQ(bankChanged.size(), 2);
}

TEST_F(PreferencesWindowTest, PlaysThroughTheChosenOutputAtTheChosenVolume)
{
    app.start({"none", {}, 0.0, 0});
    const auto choose = [&](const char* name, const QVariant& data) {
        auto* box = window.findChild<QComboBox*>(name);
        box->setCurrentIndex(box->findData(data));
        emit box->activated(box->currentIndex());
    };
    choose("Output", "none");
    choose("OutputPeriod", 4096);
    window.findChild<QSlider*>("MasterVolume")->setValue(50);
    const OutputSettings expected{"none", {}, 0.0, 4096};
    EXPECT_EQ(preferredOutput(), expected);
    EXPECT_EQ(preferredVolume(), 0.5F);
    EXPECT_TRUE(QTest::qWaitFor([&] { return app.output()->status().period == 4096; }));

    // The volume glides during the first block that begins after it was set.
    for (int block = 0; block < 2; ++block) {
        app.engine().takeLoad();
        EXPECT_TRUE(QTest::qWaitFor([&] { return app.engine().takeLoad().worst > 0.0; }));
    }
    app.engine().takePeaks();
    window.findChild<QAbstractButton*>("TestTone")->click();
    float peak = 0.0F;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        peak = std::max(peak, app.engine().takePeaks()[0]);
        return peak > 0.04F;
    }));
    EXPECT_LT(peak, 0.06F) << "half of the quiet tone";
}

TEST_F(PreferencesWindowTest, ListsMidiDevicesAsTheyComeAndGo)
{
    LiveDevices& devices = app.midiDevices();
    const auto settings = [&] { return devices.devices().at(0).settings; };
    const auto offset = [&] { return window.findChild<QSpinBox*>("KeyOffset Keys"); };
    const auto settle = [] {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of former rows
    };
    EXPECT_EQ(offset(), nullptr);
    devices.arrived({0, "Keys"});
    settle();
    ASSERT_NE(offset(), nullptr);
    offset()->setValue(-12);
    window.findChild<QAbstractButton*>("IsOn Keys")->click();
    auto* channel = window.findChild<QComboBox*>("Channel Keys");
    channel->setCurrentIndex(3);
    emit channel->activated(3);
    EXPECT_EQ(settings(), (DeviceSettings{.keyOffset = -12, .channel = 3, .isOn = false}));
    devices.departed({0, "Keys"});
    settle();
    EXPECT_EQ(offset()->value(), -12) << "is remembered";
    devices.setSettings("Keys", {});
    devices.arrived({1, "Pads"});
    settle();
    EXPECT_EQ(offset(), nullptr) << "has nothing to remember";
}

} // namespace velmora
