#include "desktop/shell/KeyboardWindow.h"

#include "app/AppDelegate.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/Commands.h"
#include "desktop/shell/StatusLine.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/windowPlace.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QToolBar>

namespace velmora {

namespace {

constexpr int kKeyboardHeight = 140;

} // namespace

KeyboardWindow::KeyboardWindow(AppDelegate& application, Commands& commands)
    : commands_(commands), keyboard_(new KeyboardView(application, application.player().liveKeys())),
      status_(new StatusLine(application))
{
    setWindowTitle(tr("Velmora"));
    setContextMenuPolicy(Qt::NoContextMenu); // the default menu can hide the toolbar
    setCentralWidget(keyboard_);
    keyboard_->setFocus(); // a focused button would take keys meant for the sequence
    setStatusBar(status_);

    QMenu* file = menuBar()->addMenu(tr("&File"));
    commands.addOpening(*file);
    commands.addClosing(*file);
    commands.addSound(*menuBar());
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addAction(commands.noteNames);
    view->addSeparator();
    commands.addWindows(*view);
    commands.addHelp(*menuBar());

    QToolBar* tools = addToolBar(tr("Tools"));
    tools->setObjectName("tools");
    tools->setMovable(false);
    tools->addActions({commands.newSequence, commands.open});
    tools->addSeparator();
    tools->addAction(commands.instrumentPanel);
    tools->addSeparator();
    tools->addAction(commands.silence);
    new LearnMenu(*tools->widgetForAction(commands.silence), application,
                  {{{LearnedAction::Kind::Silence}, tr("Silence Everything")}});
    addActions({commands.transposeUp, commands.transposeDown}); // for their shortcuts

    resize(width(), kKeyboardHeight + menuBar()->sizeHint().height() + tools->sizeHint().height() +
                        status_->sizeHint().height());
    resize(keyboard_->sizeHint().width(), height());
    rememberPlace(*this, "keyboard");
}

void KeyboardWindow::closeEvent(QCloseEvent* event)
{
    // Closing this window quits the program, unless the user cancels.
    event->ignore();
    commands_.quit->trigger();
}

void KeyboardWindow::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
    emit keyForwarded(event);
}

void KeyboardWindow::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore();
    emit keyForwarded(event);
}

} // namespace velmora
