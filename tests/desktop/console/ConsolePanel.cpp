#include "desktop/console/ConsolePanel.h"

#include "app/AppDelegate.h"
#include "desktop/console/ConsoleActions.h"
#include "desktop/console/Drawknob.h"
#include "desktop/console/ManualsDialog.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/SearchField.h"
#include "sound/OrganInstrument.h"
#include "support/RecordingInstrument.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QToolBar>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;

namespace {

ConsoleDefinition village()
{
    ConsoleDefinition organ;
    organ.divisions = {{"Pedal", true}, {"Great"}, {"Nothing"}};
    organ.stops = {{"Subbass 16'", 0, {}, false},
                   {"Principal 8'", 1, {}, true},
                   {"Octave 4'", 1, {}, false},
                   {"Flute 4'", 1, {}, false}};
    organ.couplers = {{"Great to Pedal", 0, 1, 0, false}};
    organ.identity = "village";
    return organ;
}

class ManyStops : public RecordingInstrument {
public:
    using RecordingInstrument::RecordingInstrument;
    std::size_t numStops() const override { return 200; }
    float getVolume(std::size_t stop) const override { return stop == 0 ? 0.5F : 0.0F; }
};

class ConsolePanelTest : public testing::Test {
protected:
    ConsolePanelTest()
    {
        application.tunings().addBuiltins();
        application.setInstrument(organ, "Village");
        panel.resize(700, 500);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    ~ConsolePanelTest() override
    {
        std::filesystem::remove(organSettingsFile("village"));
        application.setInstrument(nothing, "Nothing");
        application.player().remove(organ);
    }

    Drawknob& knob(const QString& name) const
    {
        for (auto* knob : panel.findChildren<Drawknob*>())
            if (knob->name() == name)
                return *knob;
        throw std::runtime_error(name.toStdString());
    }

    /// The names of the knobs in sight that fulfil a condition.
    template <class Condition> std::vector<std::string> knobsThat(Condition condition) const
    {
        std::vector<std::string> names;
        for (const auto* each : panel.findChildren<Drawknob*>())
            if (each->isVisible() && condition(*each))
                names.push_back(each->accessibleName().toStdString());
        return names;
    }
    std::vector<std::string> drawn() const
    {
        return knobsThat([](const Drawknob& each) { return each.isChecked(); });
    }

    Calls calls;
    RecordingInstrument nothing{calls};
    OrganInstrument organ{std::make_unique<ALInstrument>(), village()};
    AppDelegate application;
    Commands commands;
    ConsoleActions actions{application, commands};
    ConsolePanel panel{application, actions};
};

} // namespace

TEST_F(ConsolePanelTest, DrawsStopsAndCouplersByMouseAndKeys)
{
    EXPECT_TRUE(panel.isNeeded());
    EXPECT_THAT(drawn(), ElementsAre("Principal 8'"));
    QTest::mouseClick(&knob("Octave 4'"), Qt::LeftButton);
    EXPECT_FALSE(knob("Octave 4'").hasFocus()) << "a click leaves the focus where it is";
    QTest::keyClick(&panel, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Down);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(panel.focusWidget(), &knob("Great to Pedal"));
    QTest::keyClick(panel.focusWidget(), Qt::Key_Space);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(panel.focusWidget(), &knob("Octave 4'")) << "the next division";
    QTest::keyClick(panel.focusWidget(), Qt::Key_Left);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Return);
    EXPECT_THAT(drawn(), ElementsAre("Great to Pedal", "Octave 4'"));
    const ConsoleState state = application.organ().state();
    EXPECT_THAT(state.drawn.stops, ElementsAre(false, false, true, false));
    EXPECT_THAT(state.drawn.couplers, ElementsAre(true));

    application.organ().draw(3, true); // as a registration or a MIDI device does
    EXPECT_TRUE(knob("Flute 4'").isChecked());
    auto& search = *panel.findChild<SearchField*>();
    search.setText("4'");
    EXPECT_THAT(knobsThat([](const Drawknob&) { return true; }),
                ElementsAre("Octave 4'", "Flute 4'"));
}

TEST_F(ConsolePanelTest, HasASwellForEachDivisionAndAVolumeForEachStop)
{
    const auto swells = panel.findChildren<QSlider*>();
    ASSERT_EQ(swells.size(), 2) << "a division without a knob has no slider";
    EXPECT_EQ(swells[1]->accessibleName(), "Swell of Great");
    EXPECT_EQ(swells[1]->value(), 100);
    swells[1]->setValue(40);
    EXPECT_THAT(application.organ().state().swells, ElementsAre(1.0F, 0.4F, 1.0F));

    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, panel.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&knob("Octave 4'"), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->findChild<QSlider*>()->setValue(60);
    menu->close();
    EXPECT_FLOAT_EQ(application.organ().state().gains.at(2), 0.6F);
    EXPECT_FALSE(knob("Octave 4'").isChecked()) << "it is not drawn";
}

TEST_F(ConsolePanelTest, KeepsAndRecallsRegistrations)
{
    EXPECT_FALSE(actions.registrations[2]->isEnabled()) << "nothing is kept there";
    actions.set->trigger();
    actions.registrations[2]->trigger();
    EXPECT_FALSE(actions.set->isChecked());
    EXPECT_TRUE(actions.registrations[2]->isChecked());
    actions.cancel->trigger();
    EXPECT_THAT(drawn(), ElementsAre());
    EXPECT_FALSE(actions.registrations[2]->isChecked());
    actions.tutti->trigger();
    EXPECT_EQ(drawn().size(), 5);
    actions.registrations[2]->trigger();
    QApplication::processEvents();
    EXPECT_THAT(drawn(), ElementsAre("Principal 8'"));
    EXPECT_FALSE(actions.tutti->isChecked());
}

TEST_F(ConsolePanelTest, ListsNarrowRulesOfTheManualsFirst)
{
    application.organ().setDivisions({{"", 0, 1}, {"", kEveryChannel, 0}, {"Keystation", 3, 0}});
    ManualsDialog dialog(application, nullptr);
    EXPECT_EQ(dialog.table(), (DivisionTable{{"Keystation", 3, 0}, {"", 0, 1}, {"", -1, 0}}));
    const auto remove = [&] {
        for (auto* button : dialog.findChildren<QPushButton*>())
            if (button->text() == "Remove" && !button->isHidden())
                return button;
        return static_cast<QPushButton*>(nullptr);
    };
    remove()->click();
    dialog.accept();
    EXPECT_EQ(application.organ().divisions(), (DivisionTable{{"Keystation", 3, 0}, {"", -1, 0}}));
}

TEST_F(ConsolePanelTest, ShowsABankWithManyStops)
{
    ManyStops bank(calls);
    application.setInstrument(bank, "Bank");
    EXPECT_EQ(panel.findChildren<Drawknob*>().size(), 200);
    EXPECT_FALSE(panel.findChild<QToolBar*>()->isVisible()) << "it has no registrations";
    EXPECT_THAT(drawn(), ElementsAre("Stop 1"));
    calls.clear();
    knob("Stop 1").click();
    knob("Stop 1").click();
    knob("Stop 200").click();
    EXPECT_THAT(calls, ElementsAre("volume 0 0.00", "volume 0 0.50", "volume 199 1.00"));
    application.setInstrument(nothing, "Nothing");
    EXPECT_FALSE(panel.isNeeded());
    application.player().remove(bank);
}

} // namespace velmora
