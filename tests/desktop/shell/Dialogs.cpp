#include "desktop/shell/DialogCommands.h"
#include "desktop/shell/DialogFitter.h"
#include "desktop/shell/FileDrop.h"
#include "desktop/shell/askWhereToSave.h"
#include "desktop/widgets/windowPlace.h"
#include "platform/pathNames.h"
#include "preferences/Preferences.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QtTest>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// Calls `look` with the next modal dialog, then closes the dialog.
template <class Look> void whenOpen(const Look& look)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [=] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !QTest::qWaitForWindowActive(dialog))
            return;
        timer->deleteLater();
        timer->stop();
        look(*dialog);
        dialog->reject();
    });
    timer->start(1);
}

} // namespace

TEST(Dialogs, OpenInTheUsersFoldersUntilOneIsChosen)
{
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    QDir(home.path()).mkdir("Music");
    QWidget parent;
    const auto folder = [&] {
        QString opened;
        whenOpen([&](QDialog& dialog) {
            opened = static_cast<QFileDialog&>(dialog).directory().absolutePath();
        });
        askWhereToSave(parent, {.title = "Save",
                                .kinds = {{"WAV", {"wav"}}},
                                .proposal = "a.wav",
                                .folderKey = "testFolder"});
        return opened;
    };
    EXPECT_EQ(folder(), home.filePath("Music"));
    QDir(home.path()).rmdir("Music");
    EXPECT_EQ(folder(), home.path());
    setPrefString("testFolder", "/usr");
    EXPECT_EQ(folder(), "/usr");
    setPrefString("testFolder", "/no folder");
    EXPECT_EQ(folder(), home.path());
    resetPref("testFolder");
    qputenv("HOME", before);
}

TEST(Dialogs, StayOnTheScreen)
{
    const DialogFitter fitter;
    QFileDialog files;
    const QSize screen = files.screen()->size();
    for (const QSize size : {screen * 2, QSize(500, 400)}) {
        files.resize(size);
        files.show();
        EXPECT_EQ(files.size(), size.boundedTo(roomFor(files)));
        files.hide();
    }
}

TEST(Dialogs, LetACommandThrough)
{
    QAction silence;
    silence.setShortcut(QKeySequence("Ctrl+."));
    silence.setShortcutContext(Qt::ApplicationShortcut);
    const DialogCommands commands(silence);
    int count = 0;
    QObject::connect(&silence, &QAction::triggered, [&] { ++count; });
    QWidget window;
    window.addAction(&silence);
    window.show();
    const auto press = [](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Period, Qt::ControlModifier);
    };
    whenOpen(press);
    QMessageBox::warning(&window, "a", "b");
    EXPECT_EQ(count, 1);
    QFileDialog files(&window);
    for (const char* time : {"the first time", "the second time"}) {
        count = 0;
        whenOpen(press);
        files.exec();
        EXPECT_EQ(count, 1) << time;
    }
}

TEST(Dialogs, DroppedFilesKeepNamesThatAreNotUtf8)
{
    QMimeData data;
    data.setUrls({QUrl("file:///tmp/f%FCr%20%C3%BC%2541.mid")});
    QDragEnterEvent entering({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    FileDrop drop;
    QWidget window;
    drop.watch(window);
    QStringList paths;
    QObject::connect(&drop, &FileDrop::dropped, [&](const QStringList& all) { paths = all; });
    QApplication::sendEvent(&window, &entering);
    QApplication::sendEvent(&window, &event);
    ASSERT_EQ(paths.size(), 1);
    EXPECT_EQ(pathOf(paths[0]), "/tmp/f\xFCr \xC3\xBC%41.mid");
}

} // namespace velmora
