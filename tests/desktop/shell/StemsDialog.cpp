#include "desktop/shell/StemsDialog.h"

#include "desktop/shell/PiecesTest.h"
#include "desktop/shell/StatusLine.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace velmora {

using StemsDialogTest = PiecesTest;

TEST_F(StemsDialogTest, WritesEachVoiceAndAsksBeforeItReplacesOne)
{
    desktop.launch();
    SequencePage& window = open();
    const QTemporaryDir folder;
    int questions = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++questions;
            box->button(QMessageBox::No)->click();
            return;
        }
        auto* dialog = qobject_cast<StemsDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        if (questions > 0 || dialog->targets().empty()) {
            dialog->reject();
            return;
        }
        dialog->findChild<QLineEdit*>()->setText(folder.filePath("new/folder"));
        // Not at once: while a timer calls this, it would not fire for the question.
        QMetaObject::invokeMethod(dialog, &StemsDialog::accept, Qt::QueuedConnection);
    });
    timer.start(5);
    action("Export Voices…").trigger();
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("new"))) << "the piece has no voices";

    draw(window);
    action("Export Voices…").trigger();
    const QString name = window.saver().displayName();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return desktop.workspace().status().currentMessage() == "Exported " + name; },
        20'000));
    const QString file = folder.filePath("new/folder/" + name + " - 1.wav");
    EXPECT_GT(QFileInfo(file).size(), 1000) << file.toStdString();
    EXPECT_EQ(questions, 0);
    action("Export Voices…").trigger();
    EXPECT_EQ(questions, 1);
}

} // namespace velmora
