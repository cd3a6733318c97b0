#pragma once

#include "desktop/keyboard/KeyboardView.h"
#include "desktop/roll/SequenceStatus.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "support/answering.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>
#include <QtTest>
#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

/// The desktop program with pieces, but without devices.
class PiecesTest : public testing::Test {
protected:
    PiecesTest()
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
            if (actions[i]->menu() != nullptr && actions[i]->isVisible())
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

} // namespace velmora
