#include "desktop/shell/Desktop.h"

#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/StatusLine.h"
#include "preferences/Preferences.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/answering.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>
#include <gmock/gmock.h>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// The desktop program on a machine that has no device but the sound output of OpenAL.
class DesktopTest : public testing::Test {
protected:
    DesktopTest()
    {
        desktop.launch();
        desktop.application().waitForBank();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&desktop.workspace()));
    }

    template <class Widget> Widget& named(QWidget& window, const char* accessibleName)
    {
        for (Widget* widget : window.findChildren<Widget*>())
            if (widget->accessibleName() == accessibleName)
                return *widget;
        throw std::runtime_error(accessibleName);
    }

    void drop(QWidget& window, const std::vector<std::filesystem::path>& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const auto& path : paths)
            urls += QUrl::fromLocalFile(QString::fromStdString(path.string()));
        data.setUrls(urls);
        QDragEnterEvent entering({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &entering);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
        EXPECT_TRUE(event.isAccepted());
        QApplication::processEvents();
    }

    OrganFolder folder;
    std::filesystem::path organ()
    {
        folder.writeSine("c.wav", 500.0);
        return folder.write("small.organ", "[Organ]\nChurchName=Small\n[Manual001]\n"
                                           "FirstAccessibleKeyMIDINoteNumber=36\n[Stop001]\n"
                                           "Pipe001=c.wav\nPipe002=none.wav\n");
    }

    Desktop desktop;
    AppDelegate& application = desktop.application();
    InstrumentPanel& panel = desktop.instrumentPanel();
};

} // namespace

TEST_F(DesktopTest, OpensDroppedFilesByType)
{
    const auto scale = std::filesystem::path(VELMORA_EXAMPLES) / "kirnberger-3.scl";
    drop(desktop.workspace(), {organ(), scale});
    EXPECT_EQ(application.instrumentName(), "Small");
    EXPECT_EQ(application.tunings().name(), "kirnberger-3.scl");
    auto& table = named<QTreeView>(desktop.instrumentsWindow(), "Loaded instruments");
    ASSERT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(table.currentIndex().row(), 1);
    EXPECT_THAT(desktop.workspace().status().currentMessage().toStdString(),
                HasSubstr("1 file or sample was left out"));

    EXPECT_THAT(answering({"OK", "OK", "OK"},
                          [&] {
                              desktop.open({"/no/such.scl", "/no/such.sf2", "/no/such.txt"});
                          }),
                ElementsAre(HasSubstr("such.scl"), HasSubstr("such.sf2"),
                            HasSubstr("unrecognised file type")));
    EXPECT_EQ(application.instrumentName(), "Small") << "unchanged";
    EXPECT_EQ(application.tunings().name(), "kirnberger-3.scl");

    // Unload the organ, then select it again.
    auto* unload = desktop.instrumentsWindow().findChildren<QPushButton*>().at(1);
    application.keyOn(36, 1.0F);
    EXPECT_THAT(answering({"OK"}, [&] { unload->click(); }),
                ElementsAre(HasSubstr("Silence everything")));
    application.silenceAll();
    unload->click();
    EXPECT_EQ(application.instrumentName(), "MIDI Player");
    EXPECT_FALSE(unload->isEnabled()) << "the General MIDI player stays";
    application.tunings().select("Equal");
    QTimer::singleShot(0, [&] {
        desktop.open({QString::fromStdString(scale.string())});
        EXPECT_EQ(application.tunings().name(), "Equal") << "a file opened meanwhile waits";
    });
    table.setCurrentIndex(table.model()->index(1, 0));
    EXPECT_EQ(application.tunings().name(), "kirnberger-3.scl");
    EXPECT_EQ(application.instrumentName(), "Small");
    EXPECT_GT(application.instruments()[1]->size(), 0);
}

TEST_F(DesktopTest, LettersPlayWhateverWasClicked)
{
    const LiveKeys& keys = application.player().liveKeys();
    QLineEdit field(&panel);
    QTest::keyPress(&desktop.workspace(), Qt::Key_A);
    EXPECT_EQ(keys.state(60), kPressed) << "without a piece";
    QTest::keyPress(&panel, Qt::Key_D);
    field.setFocus();
    QTest::keyRelease(&field, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(keys.state(60), 0) << "the release may go anywhere";
    QTest::keyPress(&field, Qt::Key_S);
    EXPECT_EQ(keys.state(62), 0) << "fields keep their letters";
    EXPECT_EQ(keys.state(64), kPressed);
    QMessageBox box(&desktop.workspace());
    box.open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return keys.state(64) == 0; })) << "a dialog opens";
    QTest::keyPress(&box, Qt::Key_F);
    EXPECT_EQ(keys.state(65), 0);
}

TEST_F(DesktopTest, AppliesPreferencesImmediately)
{
    QSignalSpy paints(&desktop.workspace().keyboard(), &QOpenGLWidget::aboutToCompose);
    emit desktop.preferencesWindow().changed();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !paints.isEmpty(); }));

    auto& notices = *desktop.workspace().status().findChild<QToolButton*>();
    const int others = notices.text().toInt();
    for (const auto& [bank, more] : {std::pair{"/no/such", 1}, {"/no/other", 1}, {"", 0}}) {
        setPrefString("GMBank", bank);
        emit desktop.preferencesWindow().bankChanged();
        application.waitForBank();
        EXPECT_TRUE(QTest::qWaitFor([&, wanted = QString(bank), count = others + more] {
            return notices.text().toInt() == count && notices.toolTip().contains(wanted);
        })) << bank;
    }
    setPrefString("GMBank", kBank.string());
}

TEST_F(DesktopTest, KeysCloseSecondaryWindowsAndNoPiece)
{
    desktop.open({VELMORA_EXAMPLES "/wolf-fantasia.mid"});
    GuideWindow guide;
    for (QWidget* window : std::initializer_list<QWidget*>{&desktop.instrumentsWindow(),
                                                           &desktop.preferencesWindow(), &guide}) {
        for (const auto& [key, modifiers] :
             {std::pair{Qt::Key_Escape, Qt::NoModifier}, {Qt::Key_W, Qt::ControlModifier}}) {
            window->show();
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            EXPECT_FALSE(window->isVisible()) << window->windowTitle().toStdString();
        }
    }
    EXPECT_EQ(desktop.workspace().tabs().count(), 1);
}

TEST(Desktop, QuitsWithoutWaitingForASleepingThread)
{
    constexpr int kStarts = 10;
    constexpr auto kAsManyNaps = 1s * kStarts; // a hundred times what quitting takes
    std::chrono::nanoseconds quitting{};
    for (int i = 0; i < kStarts; ++i) {
        auto desktop = std::make_unique<Desktop>();
        desktop->launch();
        desktop->application().waitForBank();
        const auto begin = std::chrono::steady_clock::now();
        desktop.reset();
        quitting += std::chrono::steady_clock::now() - begin;
    }
    EXPECT_LT(quitting, kAsManyNaps);
}

TEST(ProgressWindow, ClosesWithTheStepThatReachesTheMaximumExactly)
{
    ProgressWindow window;
    window.startProgress(10);
    EXPECT_TRUE(window.isVisible());
    window.updateProgress(4, "four");
    window.updateProgress(0, "none");
    EXPECT_EQ(window.findChild<QLabel*>()->text(), "four");
    EXPECT_EQ(window.findChild<QProgressBar*>()->value(), 4);
    window.updateProgress(6, "ten");
    EXPECT_FALSE(window.isVisible());

    bool isCancelled = false;
    QObject::connect(&window, &ProgressWindow::cancelled, [&] { isCancelled = true; });
    window.startProgress(10);
    window.updateProgress(11, "too far");
    EXPECT_TRUE(window.isVisible());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return})
        QTest::keyClick(window.focusWidget(), key);
    EXPECT_FALSE(isCancelled) << "these keys were meant for the piece";
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(isCancelled && window.isVisible()) << "until the import stops";
    window.endProgress();
    EXPECT_FALSE(window.isVisible());
}

} // namespace velmora
