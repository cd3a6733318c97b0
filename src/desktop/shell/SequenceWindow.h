#pragma once

#include "desktop/shell/SequenceSaver.h"
#include "midi/LearnedControls.h"
#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QMainWindow>

#include <memory>

namespace velmora {

class AppDelegate;
class Commands;
class SequenceActions;
class SequenceScrollView;
class TuningStrip;

/// The window of one sequence document, which it owns.
class SequenceWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Creates an empty sequence. The title shows `name` until the sequence is saved; `recovery` is
    /// the file that protects it against a crash.
    SequenceWindow(AppDelegate& application, Commands& commands, const QString& name,
                   RecoveryFile recovery = RecoveryFile());

    /// Keeps unsaved changes for recovery if the user was not asked what to do with them.
    ~SequenceWindow() override;

    SequenceDocument& document() { return document_; }
    SequenceSaver& saver() { return saver_; }

    /// Fits the window to a document that has just been created, read or recovered.
    void showDocument();

    /// Schedules a repaint of the roll.
    void redraw();

    /// Fits the roll to the sequence and the preferences.
    void updateRollSize();

    /// Handles a key that was pressed or released while the keyboard window was active.
    void handleKey(const QKeyEvent& event);

    /// Does what its button does for `Play` and `Record`, or stops either for `Stop`. Ignores
    /// other actions.
    void perform(LearnedAction::Kind action);

    /// Closes the window without asking.
    void closeWithoutAsking();

signals:
    void activated();
    void minimized();

    /// The window is closing, and its document is about to be destroyed.
    void closing();

    /// The scale in the preferences has changed; every view that shows keys must be updated.
    void zoomed();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeView();
    void makeMenus();
    void makeViewMenu();
    void fitToScreen();
    void showTitle();
    void scrollTo(double step);

    AppDelegate& application_;
    Commands& commands_;
    SequenceDocument document_;
    SequenceEditor editor_;
    SequenceClock clock_;
    RecoveryKeeper keeper_;
    SequenceSaver saver_;
    std::unique_ptr<SequenceActions> actions_;
    SequenceScrollView* scrollView_;
    TuningStrip* tuningStrip_;
    bool isScrolledAway_ = false; ///< True if the user has scrolled away from the moving position.
    bool wasShown_ = false;
    bool isSettled_ = false; ///< True if the window can close without asking.
};

} // namespace velmora
