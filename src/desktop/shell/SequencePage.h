#pragma once

#include "desktop/roll/SequenceActions.h"
#include "desktop/shell/SequenceSaver.h"
#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QWidget>

#include <memory>

class QKeyEvent;

namespace velmora {

class AppDelegate;
class LyricsPanel;
class SequenceScrollView;
class ShellActions;
class TransportBar;

/// One piece: a sequence document, which it owns, its roll, and a line about it. It is shown as a
/// tab of the workspace or in a window of its own.
class SequencePage : public QWidget {
    Q_OBJECT

public:
    /// Creates an empty sequence. The title shows `name` until the sequence is saved; `recovery` is
    /// the file that protects it against a crash.
    SequencePage(AppDelegate& application, ShellActions& actions, const QString& name,
                 RecoveryFile recovery = RecoveryFile());

    /// Keeps unsaved changes for recovery if `settle` was not called.
    ~SequencePage() override;

    SequenceDocument& document() { return document_; }
    SequenceSaver& saver() { return saver_; }

    /// What the commands act on while this is the current piece.
    SequenceActions::Target target();

    /// Fits the page to a document that has just been created, read or recovered.
    void showDocument();

    /// Schedules a repaint of the roll.
    void redraw();

    /// Fits the roll to the sequence and the preferences.
    void updateRollSize();

    /// Gives the roll the keyboard focus.
    void focusRoll();

    /// Handles a key that was pressed or released anywhere in the workspace.
    void handleKey(const QKeyEvent& event);

    /// Shows a transport bar of its own above the roll, for a page that is a window. Null hides it.
    void setTransport(SequenceActions* actions);

    /// Writes a sound file that the user chooses.
    void exportAudio();

    /// Writes a sound file of each voice.
    void exportStems();

    /// Says that unsaved changes need not be kept: the user was asked.
    void settle() { isSettled_ = true; }

signals:
    /// The name of the piece has changed, or whether it is modified (`isWindowModified`).
    void titleChanged();

    /// A sentence for the status line.
    void message(const QString& text);

    /// Unsaved changes are not protected against a crash, for the reason that `why` gives.
    void unprotected(const QString& why);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeView();
    void showTitle();
    void scrollTo(double step);

    /// Scrolls to the beginning, with the keys that the notes use in the middle.
    void scrollToNotes();

    AppDelegate& application_;
    SequenceDocument document_;
    SequenceEditor editor_;
    SequenceClock clock_;
    RecoveryKeeper keeper_;
    SequenceSaver saver_;
    SequenceScrollView* scrollView_;
    LyricsPanel* lyrics_;
    std::unique_ptr<TransportBar> transport_; ///< Null unless the page is a window.
    bool isScrolledAway_ = false; ///< True if the user has scrolled away from the moving position.
    bool wasShown_ = false;
    bool isSettled_ = false;
};

} // namespace velmora
