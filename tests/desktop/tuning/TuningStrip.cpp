#include "desktop/tuning/TuningStrip.h"

#include "app/AppDelegate.h"
#include "support/RecordingInstrument.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace velmora {

TEST(TuningStrip, FollowsTheTuning)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate application;
    application.tunings().addBuiltins();
    application.setInstrument(instrument, "Recorder");
    TuningStrip strip(application);
    strip.show();
    EXPECT_EQ(strip.tones()[3], (TuningStrip::Tone{"Eb", 0.0}));
    EXPECT_TRUE(application.tunings().select("Quartercomma Meantone"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip.tones()[4].cents < -13; }));
    EXPECT_NEAR(strip.tones()[4].cents, -13.69, 0.01);
    EXPECT_EQ(strip.tones()[10].name, "Bb");

    EXPECT_TRUE(application.tunings().select("Dynamic"));
    application.player().isomorph(3 * 3 - 1); // the lower spelling of D sharp
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip.tones()[3].name == "D#"; }));
    application.player().isomorph(3 * 3 + 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip.tones()[3].name == "Fbb"; }));
    EXPECT_NEAR(strip.tones()[3].cents, 51.32, 0.01);

    EXPECT_TRUE(application.tunings().select("Following Meantone"));
    application.tunings().setTransposition({2, {}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip.tones()[3].name == "D#"; }))
        << "a third above B";
    EXPECT_EQ(strip.tones()[0].name, "C") << "what the key is called, not what it is on C";
}

TEST(TuningStrip, FitsItsHeightToTheTypeAtTheSameWidth)
{
    AppDelegate application;
    TuningStrip strip(application);
    const QFont type = strip.font();
    strip.resize(230, strip.height());
    strip.show();
    const int height = strip.height();
    QFont large = type;
    large.setPointSizeF(type.pointSizeF() * 1.5);
    strip.setFont(large);
    EXPECT_GT(strip.height(), height);
    strip.setFont(type);
    EXPECT_EQ(strip.height(), height);
}

} // namespace velmora
