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
    /// Including the time that writing takes, a crash loses less than ten seconds of work.
    static constexpr std::chrono::milliseconds kUsualInterval{8000};

    /// Writes at most once in an `interval`. A recovered document brings the `file` that it was
    /// kept in.
    explicit RecoveryKeeper(SequenceDocument& document, RecoveryFile file = RecoveryFile(),
                            std::chrono::milliseconds interval = kUsualInterval);
    ~RecoveryKeeper() override;

    /// Keeps the unsaved document beyond the end of the keeper, because the program ends without
    /// having asked the user.
    void leave();

private:
    void edited();
    void write();
    void keep(const UnsavedSequence& sequence);

    bool isBusy() const;
    void waitForWriter();

    SequenceDocument& document_;
    RecoveryFile file_;   ///< Used by the writer while it is busy, as is `failed_`.
    bool failed_ = false; ///< True if the file could not be written last time.
    bool isLeft_ = false;
    QTimer timer_;
    std::future<void> writer_;
};

} // namespace velmora
