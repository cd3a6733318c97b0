#pragma once

#include "import/ImportOptions.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

class AppDelegate;
class Commands;
class TranspositionCommands;

/// The commands that do not depend on a piece, those that open, save and close one, and the menus
/// whose content changes.
class ShellActions : public QObject {
    Q_OBJECT

public:
    ShellActions(AppDelegate& application, Commands& commands);
    ~ShellActions() override;

    QAction *const newSequence, *const open, *const openInstrument, *const openTuning;
    QAction *const openSession, *const saveSession, *const save, *const saveAs, *const exportAudio;
    QAction *const exportStems, *const exportMidi, *const exportScore, *const exportRoll;
    QAction *const exportScale, *const sendTuning;
    QAction *const close, *const preferences, *const quit;
    QAction* const silence;                           ///< Stops every sound at once.
    QAction* const stopLoading;                       ///< Leaves out what is not loaded yet.
    QAction *const transposeUp, *const transposeDown; ///< By a semitone.
    /// Show or hide the panels.
    QAction *const keyboard, *const instrument, *const tuning, *const console;
    QAction* const practice;     ///< Shows or hides the panel in which a piece is practised.
    QAction* const tuningStudio; ///< Shows or hides the panel in which a tuning is shaped.
    QAction* const voices;       ///< Shows or hides the voices of the piece.
    QAction *const playLayout, *const editLayout, *const stageLayout, *const resetLayout;
    QAction *const nextPanel, *const previousPanel; ///< Move the keyboard focus.
    QAction* const ownWindow; ///< Checked while the current piece has a window of its own.
    QAction *const instrumentsWindow, *const metersWindow;
    QAction* const noteNames; ///< Checked while the keyboard shows note names.
    QAction *const guide, *const commandPalette, *const about;

    void addFile(QMenu& file) const;
    void addSound(QMenuBar& bar) const;
    void addPanels(QMenu& view) const;
    void addHelp(QMenu& help) const;

    /// Puts a file at the top of the recent files.
    void addRecent(const QString& path);

    /// The files opened last, the latest first; some may no longer exist.
    static QStringList recentFiles();

signals:
    void recentFileChosen(const QString& path);
    void recentFilesChanged();

    /// The user wants the instrument at `position` of the list to be the current one.
    void instrumentChosen(std::size_t position);

    /// The user wants the file of the instrument at `position` to be read with other options.
    void reopenRequested(std::size_t position, const ImportOptions& options);

private:
    void setRecentFiles(const QStringList& files);
    void showRecent();
    void showInstruments();
    void showTunings();

    AppDelegate& application_;
    std::unique_ptr<TranspositionCommands> transposition_;
    std::unique_ptr<QMenu> recent_, instruments_, tunings_;
};

} // namespace velmora
