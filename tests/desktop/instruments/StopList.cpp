#include "desktop/instruments/StopList.h"
#include "app/AppDelegate.h"
#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/instruments/StopRow.h"
#include "desktop/widgets/SearchField.h"
#include "support/RecordingInstrument.h"

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <QSlider>
#include <QTreeWidget>
#include <QtTest>
#include <gmock/gmock.h>

#include <thread>

namespace velmora {

using testing::ElementsAre;

namespace {

class InstrumentWithStops : public RecordingInstrument {
public:
    InstrumentWithStops(std::size_t stops, Calls& calls) : RecordingInstrument(calls), stops_(stops)
    {
    }
    std::size_t numStops() const override { return stops_; }
    float getVolume(std::size_t stop) const override
    {
        return std::min(0.25F * static_cast<float>(stop), 1.0F);
    }
    std::string stopName(std::size_t stop) const override { return stop == 1 ? "Flute 4'" : ""; }

private:
    std::size_t stops_;
};

class StopListTest : public testing::Test {
protected:
    StopListTest()
    {
        application.tunings().addBuiltins();
        application.makeMIDIPlayer(std::make_unique<Silence>());
        panel.resize(260, 500);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    ~StopListTest() override { application.selectInstrument(0); }

    struct Silence : MusicDevice {
        void midiEvent(int /*status*/, int /*data1*/, int /*data2*/) override {}
    };

    /// The names of the stops in sight.
    std::vector<std::string> shown() const
    {
        std::vector<std::string> names;
        for (const auto* row : panel.findChildren<StopRow*>())
            if (row->isVisible())
                names.push_back(row->name().toStdString());
        return names;
    }

    Calls calls;
    AppDelegate application;
    InstrumentPanel panel{application};
};

} // namespace

TEST_F(StopListTest, HasASliderForEachStop)
{
    InstrumentWithStops seven(7, calls);
    InstrumentWithStops three(3, calls);
    application.setInstrument(seven, "Seven");
    application.setInstrument(three, "Three");
    EXPECT_THAT(shown(), ElementsAre("Stop 1", "Flute 4'", "Stop 3"));
    const auto sliders = panel.findChildren<QSlider*>();
    ASSERT_EQ(sliders.size(), 7) << "those that are not needed are hidden";
    EXPECT_EQ(sliders[2]->value(), 50);

    calls.clear();
    sliders[1]->setFocus();
    QTest::keyClick(sliders[1], Qt::Key_End);
    std::thread([&] { application.setVolume(0.5F, 0); }).join();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sliders[0]->value() == 50; }));
    EXPECT_THAT(calls, ElementsAre("volume 1 1.00", "volume 0 0.50")) << "each is set once";
    application.setVolume(0.5F, 4);
    QApplication::processEvents();
    EXPECT_EQ(shown().size(), 3) << "there is no such stop";
}

TEST_F(StopListTest, TurnsStopsOnAndOff)
{
    InstrumentWithStops organ(4, calls);
    application.setInstrument(organ, "Organ");
    const auto names = panel.findChildren<QCheckBox*>();
    calls.clear();
    QTest::mouseClick(names[2], Qt::LeftButton, {}, {30, names[2]->height() / 2});
    EXPECT_FALSE(names[2]->isChecked());
    EXPECT_FALSE(names[2]->hasFocus()) << "a click leaves the focus where it is";
    names[2]->setFocus();
    QTest::keyClick(names[2], Qt::Key_Return);
    QTest::keyClick(names[2], Qt::Key_Up);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Up);
    EXPECT_EQ(panel.focusWidget(), names[0]);
    QTest::keyClick(names[0], Qt::Key_Space);
    EXPECT_THAT(calls, ElementsAre("volume 2 0.00", "volume 2 0.50", "volume 0 1.00"))
        << "a stop returns to its volume, and is loud if it had none";
}

TEST_F(StopListTest, ScrollsWithTheWheelAndMovesNoSlider)
{
    InstrumentWithStops organ(6, calls);
    application.setInstrument(organ, "Organ");
    auto* slider = panel.findChildren<QSlider*>()[2];
    const auto turn = [&] {
        const QPointF place(5, 5);
        QWheelEvent event(place, slider->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &event);
    };
    calls.clear();
    turn();
    EXPECT_THAT(calls, ElementsAre());
    slider->setFocus();
    turn();
    EXPECT_EQ(calls.size(), 1);
}

TEST_F(StopListTest, ShowsAFewStopsWholeInLargerType)
{
    InstrumentWithStops organ(2, calls);
    application.setInstrument(organ, "Organ");
    QFont type = panel.font();
    type.setPointSizeF(type.pointSizeF() * 2);
    panel.setFont(type);
    const auto& list = *panel.findChild<StopList*>();
    const auto& area = *list.findChild<QScrollArea*>();
    EXPECT_GE(area.minimumHeight(), area.widget()->sizeHint().height());
    application.selectInstrument(0);
}

TEST_F(StopListTest, OffersProgramsOrShowsTheMemoryUse)
{
    auto& programs = *panel.findChild<QTreeWidget*>();
    const auto* usage = panel.findChild<QLabel*>("usage");
    const auto current = [&] { return programs.currentItem()->text(0).toStdString(); };
    application.selectInstrument(0);
    EXPECT_TRUE(programs.isVisible() && !usage->isVisible());
    EXPECT_EQ(current(), "3 Electric Grand Piano") << "the default program";
    programs.setFocus();
    QTest::keyClick(&programs, Qt::Key_Down);
    EXPECT_EQ(application.midiProgram(), 3);
    auto* field = panel.findChild<SearchField*>();
    field->setFocus();
    QTest::keyClicks(field, "church");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(application.midiProgram(), 19);
    EXPECT_FALSE(field->hasFocus()) << "the letters play again";
    field->setFocus();
    QTest::mouseClick(programs.viewport(), Qt::LeftButton, {},
                      programs.visualItemRect(programs.currentItem()).center());
    EXPECT_FALSE(field->hasFocus()) << "even if the program is the current one";
    application.receiveProgram(55);
    EXPECT_TRUE(QTest::qWaitFor([&] { return current() == "56 Orchestra Hit"; }));

    InstrumentWithStops sampled(2, calls);
    sampled.usage = 1 << 20;
    application.setInstrument(sampled, "Organ");
    EXPECT_TRUE(!programs.isVisible() && usage->isVisible());
    EXPECT_EQ(usage->text(), "Usage:  1.00MB");
    application.selectInstrument(0);
    EXPECT_EQ(current(), "56 Orchestra Hit");
}

} // namespace velmora
