#pragma once

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

/// The sequence windows that are open. The main one is that which was last in front, also while the
/// keyboard or a panel is: the keyboard shows what it plays and waits for.
class SequenceWindows : public QObject {
    Q_OBJECT

public:
    /// All of them must outlive it.
    SequenceWindows(AppDelegate& application, Commands& commands, KeyboardView& keyboard);
    ~SequenceWindows() override;

    /// Opens a window with an empty sequence.
    void create();

    /// Opens a sequence file, or brings the window to the front that has it. What is wrong with a
    /// file that cannot be read, in one sentence; empty when nothing is.
    std::string open(const QString& path);

    /// Offers what a program that ended without closing has left of its sequences.
    void offerAbandoned();

    /// Asks each what is to become of what it would lose, then closes them. False when the user
    /// wants to stay: all of them do, then.
    bool closeAll();

    /// Fits the rolls to the preferences.
    void updateDocumentSizes();

    /// Ends what plays.
    void stopPlaying();

    /// Gives a key that was pressed or released elsewhere to the main window.
    void handleKey(const QKeyEvent& event);

signals:
    /// A window was made.
    void opened(SequenceWindow& window);

    /// The preferences scale the rolls anew: everything that shows keys is to fit itself to them.
    void zoomed();

private:
    SequenceWindow& make(const QString& name, RecoveryFile recovery = RecoveryFile());
    void show(SequenceWindow& window);
    void bringToFront(SequenceWindow& window);
    void setMain(SequenceWindow* window);
    void remove(SequenceWindow& window);
    QString unusedName();

    AppDelegate& application_;
    Commands& commands_;
    KeyboardView& keyboard_;
    std::vector<SequenceWindow*> windows_; ///< Each of them owns itself.
    SequenceWindow* main_ = nullptr;
    int names_ = 0;
};

} // namespace velmora
