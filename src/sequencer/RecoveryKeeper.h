#pragma once

#include "sequencer/RecoveryFile.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <future>

namespace velmora {

class SequenceDocument;

/// Keeps a copy of an unsaved document in a recovery file, written on a thread of its own, and
/// discards it when the document is saved or closed. Main thread only. Destroy it before the
/// document, and only when the document is no longer wanted: that discards the file too.
class RecoveryKeeper : public QObject {
    Q_OBJECT

public:
    /// With this interval a crash loses less than ten seconds of work, even if writing takes a
    /// while.
    static constexpr std::chrono::milliseconds kDefaultInterval{8000};

    /// Writes at most once per `interval`. For a recovered document, pass the `file` that held it.
    explicit RecoveryKeeper(SequenceDocument& document, RecoveryFile file = RecoveryFile(),
                            std::chrono::milliseconds interval = kDefaultInterval);
    ~RecoveryKeeper() override;

    /// Keeps an unsaved document for the next start, even after this object is destroyed. Call this
    /// if the program ends without asking the user.
    void keepForNextStart();

signals:
    /// Unsaved changes are not protected, for the reason that the sentence `why` gives. Emitted on
    /// any thread, once until writing succeeds again.
    void failed(const QString& why);

private:
    void edited();
    void write();
    void keep(const UnsavedSequence& sequence);

    bool isBusy() const;
    void waitForWriter();

    SequenceDocument& document_;
    RecoveryFile file_;      ///< Used by the writer while it is busy, as is `failed_`.
    bool failed_ = false;    ///< True if the file could not be written last time.
    bool keepsFile_ = false; ///< True if the file outlives this object.
    QTimer timer_;
    std::future<void> writer_;
};

} // namespace velmora
