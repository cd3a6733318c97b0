#include "desktop/shell/SequencePage.h"

#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceStatus.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/StatusLine.h"
#include "platform/pathNames.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

/// The desktop program with sequence windows, but without devices.
class SequencePageTest : public testing::Test {
protected:
    SequencePageTest()
    {
        QObject::connect(&desktop.pages(), &SequencePages::opened,
                         [this](SequencePage& window) { last = &window; });
    }

    SequencePage& open(const char* file = nullptr)
    {
        if (file != nullptr)
            desktop.open({QString(VELMORA_EXAMPLES "/") + file});
        else
            desktop.pages().create();
        last->window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(last->window()));
        return *last;
    }

    static SequenceView& view(SequencePage& window) { return *window.findChild<SequenceView*>(); }

    QAction& action(const QString& text)
    {
        QList<QAction*> actions = desktop.workspace().menuBar()->actions();
        for (qsizetype i = 0; i < actions.size(); ++i) {
            if (actions[i]->iconText() == text)
                return *actions[i];
            if (actions[i]->menu() != nullptr)
                actions += actions[i]->menu()->actions();
        }
        throw std::runtime_error(text.toStdString());
    }

    /// The texts of the status bar that are not empty.
    static std::vector<std::string> statusTexts(SequencePage& window)
    {
        std::vector<std::string> texts;
        for (const QLabel* label : window.findChild<SequenceStatus*>()->findChildren<QLabel*>())
            if (!label->text().isEmpty())
                texts.push_back(label->text().toStdString());
        return texts;
    }

    /// Clicks these buttons, one in each message box that opens during `act`. Returns the
    /// informative texts of the boxes.
    template <class Act>
    std::vector<std::string> answering(const std::vector<QString>& answers, const Act& act)
    {
        std::vector<std::string> texts;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || texts.size() >= answers.size())
                return;
            texts.push_back(box->informativeText().toStdString());
            for (QAbstractButton* button : box->buttons())
                if (button->text().remove('&') == answers[texts.size() - 1])
                    button->click();
        });
        timer.start(5);
        act();
        EXPECT_EQ(texts.size(), answers.size());
        return texts;
    }

    /// Enters a file name in the file dialog that opens during `act`, and moves `kind` entries down
    /// its list of file types.
    template <class Act> void naming(const QString& path, const Act& act, int kind = 0)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeWindow());
            if (dialog != nullptr) {
                timer.stop();
                auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
                proposal = dialog->directory().filePath(name->text());
                name->setFocus();
                name->setText(path);
                for (int i = 0; i < kind; ++i)
                    QTest::keyClick(dialog->findChild<QComboBox*>("fileTypeCombo"), Qt::Key_Down);
                QTest::keyClick(name, Qt::Key_Return);
            }
        });
        timer.start(5);
        act();
    }

    void draw(SequencePage& window, QPoint place = {200, 200})
    {
        QTest::mouseClick(&view(window), Qt::RightButton, {}, place);
    }

    bool closes(SequencePage& window) { return desktop.pages().close(window); }

    Desktop desktop;
    SequencePage* last = nullptr;
    QString proposal; ///< What the last file dialog has proposed.
    KeyboardView& keyboard = desktop.workspace().keyboard();
};

} // namespace

TEST_F(SequencePageTest, ControlsTheTransportByKeysAndToolbar)
{
    SequencePage& window = open();
    QAction& play = action("Play");
    QAction& record = action("Record");
    SequenceDocument& document = window.document();
    draw(window);
    QTest::keyClick(&view(window), Qt::Key_Space);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Playing) << "the key acts only once";
    EXPECT_EQ(play.iconText(), "Stop");
    EXPECT_FALSE(record.isEnabled());
    desktop.workspace().instrumentPanel().findChild<QComboBox*>()->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(play.iconText(), "Play") << "a menu that was clicked does not take the key";
    play.trigger();
    QTest::keyClick(&window, Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(play.iconText(), "Play");
    record.trigger();
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Recording);
    EXPECT_EQ(record.iconText(), "Stop");
    EXPECT_FALSE(play.isEnabled());
    QTest::keyClick(&view(window), Qt::Key_Return);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Stopped);
    EXPECT_TRUE(play.isEnabled());

    auto& tempo = *desktop.workspace().findChild<TransportBar*>()->findChild<QSpinBox*>();
    tempo.setFocus();
    tempo.selectAll();
    QTest::keyClicks(&tempo, "90");
    QTest::keyClick(&tempo, Qt::Key_Return);
    EXPECT_EQ(document.transport().tempo(), 90);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Stopped) << "the field keeps its keys";
    EXPECT_EQ(QApplication::focusWidget(), &view(window)) << "the roll has the focus again";
    tempo.setFocus();
    QTest::keyClick(&tempo, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &view(window)) << "the focus moves to the next field";
    action("Snap to Grid").trigger();
    action("Loop").trigger();
    action("5").trigger();
    EXPECT_TRUE(document.recorder().snapToGrid() && document.transport().loops());
    EXPECT_EQ(document.recorder().channel(), 4);
    tempo.setFocus();
    tempo.selectAll();
    QTest::keyClicks(&tempo, "77"); // which the field reports when it loses the focus
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(window)); });
}

TEST_F(SequencePageTest, EditsFromMenusAndAcrossWindows)
{
    SequencePage& other = open();
    SequencePage& window = open();
    draw(window);
    draw(window, {300, 100});
    action("Select All").trigger();
    EXPECT_THAT(statusTexts(window), ElementsAre("2 notes selected", "2 notes in all"));
    action("Cut").trigger();
    EXPECT_THAT(statusTexts(window), ElementsAre("0 notes in all"));
    EXPECT_NO_THROW(action("Undo Cut 2 Notes"));
    desktop.pages().select(other);
    action("Paste").trigger();
    EXPECT_EQ(other.document().sequence().notes().size(), 2);
    desktop.pages().select(window);
    QTest::mousePress(&view(window), Qt::LeftButton, {}, {200, 200});
    QTest::keyClick(&view(window), Qt::Key_Z, Qt::ControlModifier);
    QTest::mouseRelease(&view(window), Qt::LeftButton, {}, {200, 200});
    EXPECT_THAT(window.document().sequence().notes(), IsEmpty()) << "no undo during a drag";
    QTest::keyClick(&view(window), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.document().sequence().notes().size(), 2);
    answering({"Discard", "Discard"}, [&] { EXPECT_TRUE(desktop.pages().closeAll()); });
}

TEST_F(SequencePageTest, TheKeyboardShowsTheSequenceThatWasActiveLast)
{
    const auto showsKeysOf = [&](SequencePage& window) {
        return QTest::qWaitFor(
            [&] { return keyboard.document() == &window.document().practice(); });
    };
    SequencePage& first = open();
    EXPECT_TRUE(showsKeysOf(first));
    SequencePage& second = open();
    EXPECT_TRUE(showsKeysOf(second));
    desktop.pages().setOwnWindow(first, true);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&first));
    EXPECT_TRUE(showsKeysOf(first));
    desktop.workspace().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    EXPECT_TRUE(showsKeysOf(second));
    desktop.pages().setOwnWindow(first, false);
    EXPECT_TRUE(showsKeysOf(first));
    const QVariant place = preference("windows/sequence");
    desktop.pages().select(second);
    EXPECT_EQ(preference("windows/sequence"), place) << "a tab has no place on the screen";
    EXPECT_TRUE(closes(second));
    EXPECT_EQ(keyboard.document(), &first.document().practice());
    EXPECT_TRUE(closes(first));
    EXPECT_EQ(keyboard.document(), nullptr);
}

TEST_F(SequencePageTest, ShowsWhichKeysPracticeWaitsFor)
{
    SequencePage& window = open("wolf-fantasia.mid");
    EXPECT_THAT(statusTexts(window), ElementsAre("Waiting for C3 G3", "156 notes in all"));
    desktop.application().keyOn(48, 1.0F);
    desktop.application().keyOn(50, 1.0F);
    window.document().practice().midiInput();
    EXPECT_EQ(statusTexts(window).front(), "Waiting for G3; not D3");
    desktop.application().silenceAll();
    EXPECT_TRUE(closes(window));
}

TEST_F(SequencePageTest, FollowsThePositionUnlessTheUserScrollsAway)
{
    setPrefBool("ReduceMotion", true);
    SequencePage& window = open("wolf-fantasia.mid");
    auto& scrollView = *window.findChild<SequenceScrollView*>();
    const auto middle = [&] {
        return (scrollView.location().x() + window.width() / 2.0) / getPrefInt("KeyWidth");
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(middle() - 57) < 2.0; })) << middle();
    const auto bottomAfter = [&](double step) {
        window.document().transport().scrollTo(step);
        return scrollView.location().y() / getPrefInt("KeyHeight");
    };
    EXPECT_EQ(bottomAfter(100), 92);
    window.document().transport().play();
    QApplication::processEvents();
    EXPECT_EQ(bottomAfter(200), 192);
    QWheelEvent wheel({100, 100}, scrollView.mapToGlobal(QPoint(100, 100)), {}, {0, -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&scrollView, &wheel);
    EXPECT_EQ(bottomAfter(300), 184) << "scrolled away";
    window.document().transport().play();
    window.document().transport().play();
    QApplication::processEvents();
    EXPECT_EQ(bottomAfter(300), 292) << "playing has started again";
    resetPref("ReduceMotion");
    EXPECT_TRUE(closes(window));
}

TEST_F(SequencePageTest, AsksBeforeItLosesChanges)
{
    SequencePage& window = open();
    EXPECT_FALSE(window.isWindowModified());
    draw(window);
    EXPECT_TRUE(window.isWindowModified());
    answering({"Cancel"}, [&] { EXPECT_FALSE(closes(window)); });
    answering({"Cancel"}, [&] { EXPECT_FALSE(desktop.pages().closeAll()); });

    const QTemporaryDir folder;
    const std::string path = folder.filePath("one.mid").toStdString();
    EXPECT_TRUE(window.document().save(path, SequenceFormat::MidiFile,
                                       SequenceDocument::SaveOperation::SaveAs));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(window.windowTitle(), "one.mid[*]");
    draw(window, {300, 100});
    answering({"Save"}, [&] { EXPECT_TRUE(closes(window)); });
    SequenceDocument reread(desktop.application().player());
    reread.read(path);
    EXPECT_EQ(reread.sequence().notes().size(), 2);

    SequencePage& imported = open("wolf-fantasia.mid");
    EXPECT_THAT(answering({"Cancel"}, [&] { EXPECT_FALSE(imported.saver().save()); }),
                ElementsAre("The source file contains unprocessed MIDI information which cannot be "
                            "overwriten (multichannel, meta events,…). Use the 'Save As…' option "
                            "instead."));
    EXPECT_EQ(&open("wolf-fantasia.mid"), &imported) << "a file is opened only once";
    EXPECT_TRUE(closes(imported));

    draw(open());
    draw(open());
    QTimer::singleShot(0, [&] { open("wolf-fantasia.mid"); });
    answering({"Discard", "Discard"}, [&] { EXPECT_TRUE(desktop.pages().closeAll()); });
    EXPECT_EQ(keyboard.document(), nullptr) << "a window opened meanwhile is closed too";
    EXPECT_EQ(open().windowTitle(), "Untitled 4[*]") << "files do not use up names";
}

TEST_F(SequencePageTest, SavesAndExportsUnderTheChosenNames)
{
    desktop.launch();
    desktop.application().waitForBank();
    SequencePage& window = open("wolf-fantasia.mid");
    const QTemporaryDir folder;
    naming(folder.filePath("tune"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
    EXPECT_EQ(window.document().path(), folder.filePath("tune.mid").toStdString());
    EXPECT_TRUE(window.saver().save()) << "no longer an imported file";
    for (const std::vector<QString>& answers : {std::vector<QString>{}, {"Yes"}})
        answering(answers, [&] {
            naming(folder.filePath("No.1"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
        });
    EXPECT_EQ(window.document().path(), folder.filePath("No.1.mid").toStdString());
    answering({"Cancel"}, [&] {
        naming(
            folder.filePath("tune.mid"), [&] { EXPECT_FALSE(window.saver().saveAs()); }, 1);
    });
    answering({"Save"}, [&] {
        naming(folder.filePath("tune.imy"), [&] { EXPECT_TRUE(window.saver().saveAs()); });
    });
    QFile melody(folder.filePath("tune.imy"));
    EXPECT_TRUE(melody.open(QIODevice::ReadOnly) && melody.readLine() == "BEGIN:IMELODY\r\n");

    naming(
        folder.filePath("x.wav"), [&] { action("Export Audio…").trigger(); }, 1);
    EXPECT_EQ(proposal, folder.filePath("tune.wav"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.saver().isBusyOrModified(); }));
    answering({"Cancel"}, [&] { EXPECT_FALSE(desktop.pages().closeAll()); });
    auto& progress = *window.findChild<QProgressDialog*>();
    EXPECT_THAT(progress.labelText().toStdString(), StartsWith("x.flac"));
    EXPECT_FALSE(progress.isModal()) << "one can play meanwhile";
    progress.cancel();

    window.document().edit()->select();
    window.document().edit()->erase();
    window.document().transport().setTempo(400);
    draw(window);
    naming(folder.filePath("tune.ogg"), [&] { action("Export Audio…").trigger(); });
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return desktop.workspace().status().currentMessage() == "Exported tune.ogg"; },
        20'000));
    EXPECT_GT(QFileInfo(folder.filePath("tune.ogg")).size(), 1000);
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(window)); });
}

TEST_F(SequencePageTest, SavesAFileWhoseNameIsNotUtf8)
{
    const QTemporaryDir folder;
    const auto file = std::filesystem::path(folder.path().toStdString()) / "f\xFCr.mid";
    std::filesystem::copy_file(VELMORA_EXAMPLES "/wolf-fantasia.mid", file);
    desktop.open({textOf(file)});
    draw(*last);
    const auto size = std::filesystem::file_size(file);
    EXPECT_EQ(last->saver().displayName(), QString("für.mid"));
    naming(folder.filePath("g.mid"), [&] { EXPECT_TRUE(last->saver().saveAs()); });
    draw(*last, {300, 300});
    naming(QFile::decodeName(file.c_str()),
           [&] { answering({"Yes"}, [&] { EXPECT_TRUE(last->saver().saveAs()); }); });
    draw(*last, {400, 300});
    EXPECT_TRUE(last->saver().save());
    EXPECT_EQ(last->document().path(), file);
    EXPECT_NE(std::filesystem::file_size(file), size);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file.parent_path()), {}), 2);
    EXPECT_EQ(pathOf(ShellActions::recentFiles().value(0)), file);
    std::filesystem::remove(file); // Qt's temporary folder cannot
}

TEST_F(SequencePageTest, OffersToRecoverUnsavedSequences)
{
    Commands commands;
    ShellActions shell(desktop.application(), commands);
    SequenceActions actions(commands);
    const auto run = [&](const auto& act) {
        QTabWidget tabs;
        SequencePages program(desktop.application(), shell, actions, tabs, keyboard);
        QObject::connect(&program, &SequencePages::opened,
                         [this](SequencePage& window) { last = &window; });
        act(program);
    };
    run([&](SequencePages& program) {
        program.create();
        draw(*last);
    });
    run([&](SequencePages& program) {
        answering({"Ask Later"}, [&] { program.offerAbandoned(); });
        EXPECT_TRUE(program.closeAll());
    });
    run([&](SequencePages& program) {
        answering({"Recover"}, [&] { program.offerAbandoned(); });
        EXPECT_TRUE(last->isWindowModified());
        EXPECT_EQ(last->document().sequence().notes().size(), 1);
        answering({"Discard"}, [&] { EXPECT_TRUE(program.closeAll()); });
        answering({}, [&] { program.offerAbandoned(); });
    });
}

} // namespace velmora
