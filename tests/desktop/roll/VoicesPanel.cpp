#include "desktop/roll/VoicesPanel.h"

#include "app/AppDelegate.h"
#include "sequencer/SequenceDocument.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// A device without sound.
class QuietDevice : public MusicDevice {
public:
    void midiEvent(int /*status*/, int /*data1*/, int /*data2*/) override {}
};

template <class Control> Control* controlNamed(const QWidget& panel, const QString& name)
{
    for (Control* control : panel.findChildren<Control*>())
        if (control->accessibleName() == name)
            return control;
    return nullptr;
}

} // namespace

TEST(VoicesPanel, ShowsAndChangesTheVoicesOfThePiece)
{
    AppDelegate application;
    application.tunings().addBuiltins();
    application.makeMIDIPlayer(std::make_unique<QuietDevice>());
    SequenceDocument document(application.player());
    document.edit()->addNote({.length = 4.0, .velocity = 1.0F, .channel = 3, .key = 60});
    VoicesPanel panel(application);
    panel.setDocument(&document);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));

    EXPECT_FALSE(controlNamed<QLineEdit>(panel, "Name of voice 3")->isVisible());
    auto* name = controlNamed<QLineEdit>(panel, "Name of voice 4");
    ASSERT_TRUE(name->isVisible());
    name->setFocus();
    QTest::keyClicks(name, "Viol");
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(document.voices()[3].name, "Viol");
    controlNamed<QToolButton>(panel, "Record and draw on Viol")->click();
    EXPECT_EQ(document.recorder().channel(), 3);
    controlNamed<QToolButton>(panel, "Mute Viol")->click();
    EXPECT_TRUE(document.voices()[3].isMuted);

    emit controlNamed<QToolButton>(panel, "Mute Viol")->customContextMenuRequested({});
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions().front()->trigger();
    EXPECT_EQ(document.sequence().selection().size(), 1U);
    for (QAction* action : menu->actions())
        action->trigger();
    EXPECT_FALSE(document.voices()[3].isMuted);
    EXPECT_TRUE(document.voices()[3].isSolo);
    EXPECT_TRUE(document.voices()[3].isLocked);
    for (QAction* action : menu->actions())
        action->trigger();
    EXPECT_TRUE(document.voices()[3].isMuted);
    EXPECT_FALSE(document.voices()[3].isSolo || document.voices()[3].isLocked);

    menu->close();

    auto* program = controlNamed<QComboBox>(panel, "Program of Viol");
    program->setCurrentIndex(42);
    emit program->activated(42);
    EXPECT_EQ(document.voices()[3].sound.preset, (PartSound::Preset{0, 41, false}));
    document.undoStack().undo();
    EXPECT_EQ(program->currentIndex(), 0) << "like the instrument";
    EXPECT_TRUE(document.voices()[3].isMuted);
}

TEST(VoicesPanel, LeavesTheNextPieceAlone)
{
    AppDelegate application;
    SequenceDocument first(application.player()), second(application.player());
    Voices voices = first.voices();
    for (const unsigned channel : {2U, 5U}) {
        first.edit()->addNote({.length = 4.0, .velocity = 1.0F, .channel = channel, .key = 60});
        voices[channel].name = "Viol";
    }
    first.setVoices(voices, "");
    VoicesPanel panel(application);
    panel.setDocument(&first);
    panel.show();
    QApplication::setActiveWindow(&panel);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    controlNamed<QLineEdit>(panel, "Name of voice 3")->setFocus();
    ASSERT_TRUE(controlNamed<QLineEdit>(panel, "Name of voice 3")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClicks(QApplication::focusWidget(), "a");
    panel.setDocument(&second);
    EXPECT_EQ(first.voices()[2].name, "Viola") << "what was typed without Return";
    EXPECT_EQ(second.voices(), newVoices());
    EXPECT_FALSE(second.isModified());
}

} // namespace velmora
