#include "desktop/keyboard/ComputerKeyboard.h"

#include "app/AppDelegate.h"
#include "support/RecordingInstrument.h"

#include <QSignalSpy>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ComputerKeyboardTest : public testing::Test {
protected:
    ComputerKeyboardTest()
    {
        application.tunings().addBuiltins();
        application.setInstrument(instrument, "Recorder");
    }

    ~ComputerKeyboardTest() override { letters.releaseKeys(); }

    bool down(int key, Qt::KeyboardModifiers modifiers = {}, unsigned scanCode = 0)
    {
        return letters.keyDown({QEvent::KeyPress, key, modifiers, scanCode, 0, 0});
    }
    bool up(int key, Qt::KeyboardModifiers modifiers = {}, unsigned scanCode = 0)
    {
        return letters.keyUp({QEvent::KeyRelease, key, modifiers, scanCode, 0, 0});
    }
    bool type(int key, Qt::KeyboardModifiers modifiers = {}, unsigned scanCode = 0)
    {
        return down(key, modifiers, scanCode) && up(key, modifiers, scanCode);
    }

    /// What the instrument has played and stopped since the last call.
    Calls played()
    {
        Calls keys = std::exchange(calls, {});
        std::erase_if(keys, [](const std::string& call) { return call.starts_with("tune"); });
        return keys;
    }

    Calls calls;
    RecordingInstrument instrument{calls};
    AppDelegate application;
    ComputerKeyboard letters{application};
};

} // namespace

TEST_F(ComputerKeyboardTest, PlaysAPianoInEveryFixedTuning)
{
    type(Qt::Key_A);
    type(Qt::Key_W);
    type(Qt::Key_Q, {}, 38); // the position of A on the US layout
    type(Qt::Key_Apostrophe);
    application.tunings().select("Quartercomma Meantone");
    type(Qt::Key_NumberSign, {}, 51); // left of Return on a German keyboard
    EXPECT_THAT(played(),
                ElementsAre("play 60 1.00", "stop 60", "play 61 1.00", "stop 61", "play 60 1.00",
                            "stop 60", "play 77 1.00", "stop 77", "play 79 1.00", "stop 79"));
    for (const int key : {Qt::Key_Q, Qt::Key_C, Qt::Key_1, Qt::Key_Space, Qt::Key_Shift})
        EXPECT_FALSE(type(key)) << key << " is left to the piece";
    EXPECT_FALSE(type(Qt::Key_A, Qt::ControlModifier));
    EXPECT_FALSE(up(Qt::Key_A)) << "it was pressed elsewhere";
    EXPECT_THAT(played(), IsEmpty());
}

TEST_F(ComputerKeyboardTest, HoldsKeysUntilTheirLetterIsReleased)
{
    QSignalSpy moves(&letters, &ComputerKeyboard::octaveMoved);
    QSignalSpy inputs(&application, &AppDelegate::midiInputReceived);
    EXPECT_TRUE(down(Qt::Key_A));
    EXPECT_TRUE(down(Qt::Key_A)) << "repeated";
    EXPECT_EQ(application.player().liveKeys().state(60), kPressed);
    type(Qt::Key_X);
    down(Qt::Key_S);
    application.keyOn(60, 1.0F); // the mouse takes the key as well
    up(Qt::Key_A);
    EXPECT_EQ(application.player().liveKeys().state(60), kPressed);
    application.keyOff(60);
    letters.releaseKeys();
    EXPECT_THAT(played(),
                ElementsAre("play 60 1.00", "play 74 1.00", "play 60 1.00", "stop 60", "stop 74"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !inputs.isEmpty(); }));
    EXPECT_EQ(moves.takeFirst().first().toString(), "Letters play from C5");
    for (int i = 0; i < 12; ++i)
        type(Qt::Key_Z);
    type(Qt::Key_A);
    for (int i = 0; i < 12; ++i)
        type(Qt::Key_X);
    type(Qt::Key_A);
    type(Qt::Key_Apostrophe);
    EXPECT_THAT(played(), ElementsAre("play 0 1.00", "stop 0", "play 108 1.00", "stop 108",
                                      "play 125 1.00", "stop 125"));
}

TEST_F(ComputerKeyboardTest, PlaysTheSpellingsOfDynamic)
{
    const auto spelling = [&] {
        double cents = 0.0;
        application.player().with([&](Instrument&, Temperament& temperament) {
            cents = temperament.getTuning(2).cent();
        });
        return cents;
    };
    application.tunings().select("Dynamic");
    type(Qt::Key_X); // n = 5, the lower neighbour of D
    const double lower = spelling();
    type(Qt::Key_D); // n = 6
    EXPECT_NEAR(spelling() - lower, 41.06, 0.01);
    down(Qt::Key_A, Qt::ShiftModifier);
    up(Qt::Key_A); // Shift was released first
    type(Qt::Key_Backslash);
    type(Qt::Key_AsciiTilde, Qt::ShiftModifier);
    EXPECT_THAT(played(),
                ElementsAre("play 50 1.00", "stop 50", "play 50 1.00", "stop 50", "play 60 1.00",
                            "stop 60", "play 59 1.00", "stop 59", "play 60 1.00", "stop 60"));
    EXPECT_FALSE(type(Qt::Key_5)) << "a channel of the piece";
    down(Qt::Key_D);
    application.tunings().select("Equal");
    letters.releaseKeys();
    EXPECT_THAT(played(), ElementsAre("play 50 1.00", "stop 50"));
}

} // namespace velmora
