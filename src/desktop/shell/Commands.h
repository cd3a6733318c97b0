#pragma once

#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

class AppDelegate;

/// The actions and menus that the menu bars of all windows share.
class Commands : public QObject {
    Q_OBJECT

public:
    explicit Commands(AppDelegate& application);
    ~Commands() override;

    // The actions, for menus and toolbars.
    QAction* const newSequence;
    QAction* const open;
    QAction* const preferences;
    QAction* const quit;
    QAction* const silence;     ///< Stops every sound at once.
    QAction* const transposeUp; ///< By a semitone, as does the next one.
    QAction* const transposeDown;
    QAction* const keyboardWindow;
    QAction* const instrumentPanel;
    QAction* const instrumentsWindow;
    QAction* const metersWindow;
    QAction* const noteNames; ///< Checked while the keyboard shows note names.

    /// Adds New, Open and the recent files to the beginning of a File menu.
    void addOpening(QMenu& file) const;

    /// Adds Preferences and Quit to the end of a File menu.
    void addClosing(QMenu& file) const;

    /// Adds the Instrument and Tuning menus.
    void addSound(QMenuBar& bar) const;

    /// Adds the program's own windows to a View menu.
    void addWindows(QMenu& view) const;

    /// Adds the Help menu.
    void addHelp(QMenuBar& bar) const;

    /// Puts a file at the top of the recent files.
    void addRecent(const QString& path);

signals:
    void recentFileChosen(const QString& path);

    /// The user wants the instrument at `position` of the list to be the current one.
    void instrumentChosen(std::size_t position);

    void guideRequested();
    void aboutRequested();

private:
    void showRecent();
    void showInstruments();
    void showTunings();

    AppDelegate& application_;
    std::unique_ptr<QMenu> recent_, instruments_, tunings_, help_;
};

} // namespace velmora
