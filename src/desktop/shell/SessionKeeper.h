#pragma once

#include "app/Session.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <filesystem>
#include <string>

namespace velmora {

class AppDelegate;
class SequencePages;
class Workspace;

/// Keeps what is open in files: in one beside the preferences, so that the program can start as it
/// ended, and in session files of the user.
class SessionKeeper : public QObject {
    Q_OBJECT

public:
    enum class Arrangement { Kept, Wanted };

    /// The arguments must outlive the keeper.
    SessionKeeper(AppDelegate& application, Workspace& workspace, SequencePages& pages);

    /// Opens everything that a session file names beside what is open, and arranges the window if
    /// that is `Wanted`. Returns a line for each file that cannot be opened, or one that says what
    /// is wrong with the session file, in which case nothing has changed. Empty on success.
    QString open(const std::filesystem::path& file, Arrangement arrangement);

    /// Writes what is open to a session file. Throws std::runtime_error with a sentence.
    void save(const std::filesystem::path& file) const;

    /// Returns whether something was open when the program ended.
    static bool hasLast();

    /// Returns whether the program ended while it was opening that again, which may be why it
    /// ended.
    static bool wasInterrupted();

    /// Opens what was open when the program ended, but does not arrange the window. Returns lines
    /// as `open` does.
    QString openLast();

    /// Says that the program has started well, and from now on remembers what is open, every half
    /// minute if it has changed.
    void startRemembering();

    /// Remembers what is open for the last time.
    void finish();

private:
    Session current() const;
    void remember();
    void rememberAtRest();

    AppDelegate& application_;
    Workspace& workspace_;
    SequencePages& pages_;
    QTimer timer_;
    std::string remembered_; ///< The content of the file.
    bool isRemembering_ = false;
};

} // namespace velmora
