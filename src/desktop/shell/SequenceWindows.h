#pragma once

#include "midi/LearnedControls.h"
#include "sequencer/RecoveryFile.h"

#include <QObject>

#include <string>
#include <vector>

class QKeyEvent;

namespace velmora {

class AppDelegate;
class Commands;
class KeyboardView;
class SequenceWindow;

/// The open sequence windows. The current window is the one that was active last, even while the
/// keyboard or a panel is active. The keyboard shows the keys that its sequence plays, or that its
/// practice waits for.
class SequenceWindows : public QObject {
    Q_OBJECT

public:
    /// The arguments must outlive the windows.
    SequenceWindows(AppDelegate& application, Commands& commands, KeyboardView& keyboard);
    ~SequenceWindows() override;

    /// Opens a window with an empty sequence.
    void create();

    /// Opens a sequence file, or brings its window to the front if it is already open. Returns a
    /// sentence that says what is wrong with the file; empty on success.
    std::string open(const QString& path);

    /// Offers to recover the unsaved sequences of an earlier run that did not end properly.
    void offerAbandoned();

    /// Asks for each window what to do with its unsaved changes, then closes all windows. Returns
    /// false if the user cancels; then all of them stay open.
    bool closeAll();

    /// Fits the rolls to the preferences.
    void updateRollSizes();

    /// Stops every sequence that is playing.
    void stopPlaying();

    /// Forwards a key that was pressed or released elsewhere to the current window.
    void handleKey(const QKeyEvent& event);

    /// Lets the current window perform a learned action.
    void perform(LearnedAction::Kind action);

signals:
    /// A window was created.
    void opened(SequenceWindow& window);

    /// The scale in the preferences has changed; every view that shows keys must be updated.
    void zoomed();

private:
    SequenceWindow& makeWindow(const QString& name, RecoveryFile recovery = RecoveryFile());
    void show(SequenceWindow& window);
    void bringToFront(SequenceWindow& window);
    void setCurrent(SequenceWindow* window);
    void remove(SequenceWindow& window);
    QString unusedName();

    AppDelegate& application_;
    Commands& commands_;
    KeyboardView& keyboard_;
    std::vector<SequenceWindow*> windows_; ///< Each one deletes itself when it is closed.
    SequenceWindow* current_ = nullptr;
    int names_ = 0; ///< How many names `unusedName` has returned.
};

} // namespace velmora
