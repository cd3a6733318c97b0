#pragma once

#include "app/OfflineSound.h"
#include "sequencer/UnsavedSequence.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <thread>

namespace velmora {

/// Renders a sequence to a sound file on a thread of its own, while live playing goes on. The file
/// appears when it is whole; one that was there stays until then.
class AudioExport : public QObject {
    Q_OBJECT

public:
    /// Begins, once. `tempo` is in beats a minute; the name of the file ends in .wav, .flac or
    /// .ogg.
    void start(SoundSettings sound, UnsavedSequence sequence, double tempo,
               std::filesystem::path file);

    /// Gives up what is not done, and waits for that.
    ~AudioExport() override;

    /// Gives up: `finished` follows.
    void cancel() { thread_.request_stop(); }

signals:
    /// From 0 to 1, first for the loading of the instrument, then for the rendering; `what` says
    /// which. Comes from the export's thread, as `finished` does.
    void progressed(const QString& what, double done);

    /// The last that comes: the file is there; or it is not, and `error` is the reason in one
    /// sentence, empty after `cancel`.
    void finished(bool isWritten, const QString& error);

private:
    struct Job {
        SoundSettings sound;
        UnsavedSequence sequence;
        double tempo;
        std::filesystem::path file;
    };

    void run(const std::stop_token& stop, Job job);

    /// False when it was given up.
    bool write(const std::stop_token& stop, Job job);

    std::jthread thread_;
};

} // namespace velmora
