#include "desktop/tuning/TranspositionBar.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/AdaptivePane.h"
#include "desktop/tuning/DriftMeter.h"
#include "desktop/tuning/GlideBar.h"
#include "desktop/tuning/TranspositionCommands.h"
#include "desktop/tuning/transposing.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Preferences.h"
#include "support/RecordingInstrument.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QtTest>
#include <gtest/gtest.h>

namespace velmora {

namespace {

template <class Widget> Widget& named(QWidget& parent, const char* name)
{
    return *parent.findChild<Widget*>(name);
}

} // namespace

TEST(TranspositionBar, AgreesWithTheCommandsAboutTheRootAndThePitch)
{
    AppDelegate application;
    Tunings& tunings = application.tunings();
    tunings.addBuiltins();
    TranspositionBar bar(tunings);
    Commands commands;
    const TranspositionCommands actions(tunings, commands);
    auto& root = named<QComboBox>(bar, "root");
    auto& a = named<QDoubleSpinBox>(bar, "pitchOfA");
    const auto perform = [&](std::size_t command) { commands.all().at(command).action->trigger(); };
    const auto title = [&] { return standingTitle("Equal", tunings).toStdString(); };

    EXPECT_EQ(a.text(), "As the tuning has it");
    EXPECT_EQ(title(), "Equal");
    root.setCurrentIndex(10);
    emit root.activated(10);
    EXPECT_EQ(title(), "Equal on B♭");
    a.setValue(415.3);
    EXPECT_EQ(tunings.transposition(), (Transposition{10, 415.3}));
    EXPECT_EQ(title(), "Equal on B♭, A 415.3 Hz");
    perform(0); // a fifth up
    EXPECT_EQ(root.currentText(), "F");
    perform(1);
    perform(2); // a semitone up
    perform(2);
    perform(2);
    EXPECT_EQ(tunings.transposition().root, 1);
    perform(3);
    EXPECT_EQ(title(), "Equal, A 415.3 Hz");
    perform(4);
    EXPECT_EQ(a.value(), 392.0);
    EXPECT_TRUE(commands.all().at(4).action->isChecked());
    perform(4);
    EXPECT_TRUE(commands.all().at(4).action->isChecked()) << "it still holds";
    perform(10);
    EXPECT_EQ(a.text(), "As the tuning has it");
    EXPECT_FALSE(commands.all().at(4).action->isChecked());
    a.stepUp();
    EXPECT_EQ(tunings.transposition().a, 380.0);
    a.stepDown();
    EXPECT_EQ(tunings.transposition(), Transposition{});
}

TEST(AdaptivePane, ShowsWhatTheTuningCanDo)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(instrument, "Recorder");
    AdaptivePane pane(application);
    GlideBar glide(application.playing());
    pane.show();
    auto& corrects = named<QCheckBox>(pane, "CorrectSpelling");
    auto& drift = named<QComboBox>(pane, "Drift");
    auto& meter = *pane.findChild<DriftMeter*>();
    EXPECT_FALSE(corrects.isVisible());
    application.tunings().select("Following Meantone");
    EXPECT_TRUE(corrects.isVisible());
    EXPECT_FALSE(drift.isVisible());
    application.tunings().select("Pure");
    drift.setCurrentIndex(1);
    emit drift.activated(1);
    EXPECT_EQ(application.playing().adaptive().drift, Drift::Free);
    corrects.setChecked(false);
    EXPECT_EQ(application.playing().adaptive().correction, 0.0);
    EXPECT_FALSE(named<QSpinBox>(pane, "CorrectionTime").isEnabled());
    for (const int key : {60, 69, 62, 67, 60}) {
        application.keyOn(key, 1.0F);
        application.keyOff(key == 60 ? 67 : key == 69 ? 60 : key == 62 ? 69 : 62);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return meter.text().startsWith("−"); }))
        << "each of these intervals leads the pitch down";

    named<QSpinBox>(glide, "GlideTime").setValue(120);
    named<QCheckBox>(glide, "GlideNewOnly").setChecked(true);
    EXPECT_EQ(application.playing().glide(), (Glide{0.12, false}));
    for (const char* key : {"Drift", "CorrectSpelling", "GlideTime", "GlideSounding"})
        resetPref(key);
}

} // namespace velmora
