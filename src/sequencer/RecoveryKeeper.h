#pragma once

#include "sequencer/RecoveryFile.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <future>

namespace velmora {

class SequenceDocument;

/// Keeps what is not saved of a document in a recovery file, on a thread of its own, and discards
/// it once the document is saved. On the main thread, and gone before the document: that the keeper
/// ends means that the document is closed and is no longer wanted.
class RecoveryKeeper : public QObject {
    Q_OBJECT

public:
    /// With the time that writing takes, a crash loses less than ten seconds of work.
    static constexpr std::chrono::milliseconds kUsualInterval{8000};

    /// Writes no more often than every `interval`. `file` is that of a document which has been
    /// recovered from it.
    explicit RecoveryKeeper(SequenceDocument& document, RecoveryFile file = RecoveryFile(),
                            std::chrono::milliseconds interval = kUsualInterval);
    ~RecoveryKeeper() override;

    /// Keeps what is not saved now, and beyond the end of the keeper: the program ends without
    /// having asked what is wanted.
    void leave();

private:
    void edited();
    void write();
    void keep(const UnsavedSequence& sequence);

    bool isBusy() const;
    void waitForWriter();

    SequenceDocument& document_;
    RecoveryFile file_;   ///< Belongs to the writer while that is busy.
    bool failed_ = false; ///< Likewise: whether it could not be written last time.
    bool isLeft_ = false;
    QTimer timer_;
    std::future<void> writer_;
};

} // namespace velmora
