#pragma once

#include "app/renderFiles.h"

#include <QObject>
#include <QString>

#include <thread>
#include <vector>

namespace velmora {

/// Renders a sequence to sound files on a thread of its own, without disturbing live playing.
/// Existing files are replaced only once all the new ones are complete.
class AudioExport : public QObject {
    Q_OBJECT

public:
    /// Starts the export. May be called once. `speed` is 1 for the tempo as written.
    void start(SoundSettings sound, UnsavedSequence sequence, double speed,
               std::vector<SoundTarget> targets);

    /// Cancels a running export and waits for its thread.
    ~AudioExport() override;

    /// Cancels the export; `finished` follows.
    void cancel() { thread_.request_stop(); }

signals:
    /// Reports progress from 0 to 1, first of loading the instrument and then of rendering, again
    /// for each file; `what` names the stage. Emitted on the export's thread, like `finished`.
    void progressed(const QString& what, double done);

    /// The last signal. If the files were not written, `error` says why in one sentence; it is
    /// empty after `cancel`.
    void finished(bool isWritten, const QString& error);

private:
    struct Job {
        SoundSettings sound;
        UnsavedSequence sequence;
        double speed;
        std::vector<SoundTarget> targets;
    };

    void run(const std::stop_token& stop, const Job& job);

    /// Returns false if it was cancelled.
    bool write(const std::stop_token& stop, const Job& job);

    std::jthread thread_;
};

} // namespace velmora
