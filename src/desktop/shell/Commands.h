#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class QAction;
class QMenu;
class QMenuBar;

namespace velmora {

class AppDelegate;

/// What can be done from the menu bar of every window, whichever it is in front: the same actions
/// and menus in each of them.
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
    QAction* const silence; ///< Ends every sound at once.
    QAction* const keyboardWindow;
    QAction* const instrumentPanel;
    QAction* const instrumentsWindow;
    QAction* const noteNames; ///< Checked while the keyboard shows them.

    /// New, Open and the recent files, for the beginning of a File menu.
    void addOpening(QMenu& file) const;

    /// Preferences and Quit, for its end.
    void addClosing(QMenu& file) const;

    /// The Instrument and Tuning menus.
    void addSound(QMenuBar& bar) const;

    /// The program's own windows, for a View menu.
    void addWindows(QMenu& view) const;

    void addHelp(QMenuBar& bar) const;

    /// Puts a file on top of the recent ones.
    void addRecent(const QString& path);

signals:
    void openRecent(const QString& path);
    /// The listed instrument at that position is to be made the current one.
    void selectInstrument(std::size_t position);
    void guideWanted();
    void aboutWanted();

private:
    void showRecent();
    void showInstruments();
    void showTunings();

    AppDelegate& application_;
    std::unique_ptr<QMenu> recent_, instruments_, tunings_, help_;
};

} // namespace velmora
