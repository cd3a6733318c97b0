#pragma once

#include "sequencer/RecoveryFile.h"

#include <QObject>

#include <string>
#include <vector>

class QTabWidget;

namespace velmora {

class AppDelegate;
class KeyboardView;
class SequenceActions;
class SequenceDocument;
class SequencePage;
class ShellActions;

/// The open pieces. Each is a tab, or has a window of its own. The current piece is the one that
/// was active last, even while a panel is active: the commands act on it, and the keyboard shows
/// the keys that it plays, or that its practice waits for. Before the user's session ends, the user
/// is asked what to do with unsaved changes.
class SequencePages : public QObject {
    Q_OBJECT

public:
    /// The arguments must outlive the pages.
    SequencePages(AppDelegate& application, ShellActions& shell, SequenceActions& actions,
                  QTabWidget& tabs, KeyboardView& keyboard);
    ~SequencePages() override;

    /// The current piece; null if none is open.
    SequencePage* current() const { return current_; }

    /// The open pieces in the order in which they were opened.
    const std::vector<SequencePage*>& all() const { return pages_; }

    /// Makes an open piece the current one and brings it to the front.
    void select(SequencePage& page);

    /// Opens an empty sequence.
    SequencePage& create();

    /// Opens a sequence file, or selects its page if it is already open. Returns a sentence that
    /// says what is wrong with the file; empty on success.
    std::string open(const QString& path);

    /// Offers to recover the unsaved sequences of an earlier run that did not end properly.
    void offerAbandoned();

    /// Asks what to do with unsaved changes of a page, then closes it. Returns false if the user
    /// cancels.
    bool close(SequencePage& page);

    /// Asks for each page what to do with its unsaved changes. Returns false if the user cancels.
    bool askToCloseAll();

    /// Asks like `askToCloseAll` before the user's session ends, and keeps the session if the user
    /// cancels. Asks nothing if the manager, a `QSessionManager`, does not let it: unsaved changes
    /// are then kept for recovery.
    template <class SessionManager> void answerLogout(SessionManager& manager)
    {
        if (!manager.allowsInteraction())
            return;
        if (askToCloseAll())
            manager.release();
        else
            manager.cancel();
    }

    /// Asks like `askToCloseAll`, then closes all pages. Returns false if the user cancels; then
    /// all of them stay open.
    bool closeAll();

    /// Gives a piece a window of its own, or makes it a tab again.
    void setOwnWindow(SequencePage& page, bool own);

    /// Fits the rolls to the preferences.
    void updateRollSizes();

    /// Stops every sequence that is playing.
    void stopPlaying();

signals:
    /// A page was created.
    void opened(SequencePage& page);

    /// Another piece, or none, is the current one; or its title has changed.
    void currentChanged();

    /// The user has agreed to close all pages, which are still open.
    void closingAll();

    /// A sentence for the status line.
    void message(const QString& text);

    /// Unsaved changes are not protected against a crash, for the reason that `why` gives. Emitted
    /// only once.
    void unprotected(const QString& why);

private:
    bool askToOpenDamaged(const SequenceDocument& document);
    SequencePage& makePage(const QString& name, RecoveryFile recovery = RecoveryFile());
    void show(SequencePage& page);
    void showTitle(SequencePage& page);
    void setCurrent(SequencePage* page);

    /// Stops the pieces that can no longer play, because the voices of a page sound in place of
    /// theirs.
    void stopOthers(SequencePage& page);
    void remove(SequencePage& page);
    QString unusedName();
    bool eventFilter(QObject* watched, QEvent* event) override;

    AppDelegate& application_;
    ShellActions& shell_;
    SequenceActions& actions_;
    QTabWidget& tabs_;
    KeyboardView& keyboard_;
    std::vector<SequencePage*> pages_; ///< Each is owned by the tabs or by its window.
    SequencePage* current_ = nullptr;
    bool wasUnprotected_ = false;
    int names_ = 0; ///< How many names `unusedName` has returned.
};

} // namespace velmora
