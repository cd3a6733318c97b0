#pragma once

#include "app/OfflineSound.h"
#include "sequencer/UnsavedSequence.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <thread>

namespace velmora {

/// Renders a sequence to a sound file on a thread of its own, without disturbing live playing. An
/// existing file is replaced only once the new one is complete.
class AudioExport : public QObject {
    Q_OBJECT

public:
    /// Starts the export. May be called once. `speed` is 1 for the tempo as written, and the
    /// file's name ends in .wav, .flac or .ogg.
    void start(SoundSettings sound, UnsavedSequence sequence, double speed,
               std::filesystem::path file);

    /// Cancels a running export and waits for its thread.
    ~AudioExport() override;

    /// Cancels the export; `finished` follows.
    void cancel() { thread_.request_stop(); }

signals:
    /// Reports progress from 0 to 1, first of loading the instrument and then of rendering; `what`
    /// names the stage. Emitted on the export's thread, like `finished`.
    void progressed(const QString& what, double done);

    /// The last signal. If the file was not written, `error` says why in one sentence; it is empty
    /// after `cancel`.
    void finished(bool isWritten, const QString& error);

private:
    struct Job {
        SoundSettings sound;
        UnsavedSequence sequence;
        double speed;
        std::filesystem::path file;
    };

    void run(const std::stop_token& stop, Job job);

    /// Returns false if it was cancelled.
    bool write(const std::stop_token& stop, Job job);

    std::jthread thread_;
};

} // namespace velmora
