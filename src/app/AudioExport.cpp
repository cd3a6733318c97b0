#include "app/AudioExport.h"

#include "app/SequenceRenderer.h"
#include "audio/AudioFileWriter.h"

#include <sys/resource.h>

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

namespace velmora {

namespace {

/// The niceness of an export, so that live playing has priority.
constexpr int kNiceness = 10;

/// Reports progress once per percent.
class Progress : public InstrumentHost {
public:
    Progress(AudioExport& audioExport, bool correctsTuning, std::stop_token stop)
        : export_(audioExport), correctsTuning_(correctsTuning), stop_(std::move(stop))
    {
    }

    void startProgress(long steps) override { steps_ = std::max(steps, 1L); }

    void updateProgress(unsigned steps, const std::string& /*text*/) override
    {
        done_ += steps;
        tell(AudioExport::tr("Loading the instrument"),
             std::min(static_cast<double>(done_) / static_cast<double>(steps_), 1.0));
    }

    bool isCancelled() const override { return stop_.stop_requested(); }
    bool correctsTuning() const override { return correctsTuning_; }

    /// Returns false if the export was cancelled.
    bool rendered(double done)
    {
        tell(AudioExport::tr("Rendering"), done);
        return !isCancelled();
    }

private:
    void tell(const QString& what, double done)
    {
        const int percent = static_cast<int>(done * 100.0);
        if (what == what_ && percent == percent_)
            return;
        what_ = what;
        percent_ = percent;
        emit export_.progressed(what, done);
    }

    AudioExport& export_;
    const bool correctsTuning_;
    std::stop_token stop_;
    long steps_ = 1, done_ = 0;
    QString what_;
    int percent_ = -1;
};

} // namespace

AudioExport::~AudioExport() = default;

void AudioExport::start(SoundSettings sound, UnsavedSequence sequence, double speed,
                        std::filesystem::path file)
{
    Job job{std::move(sound), std::move(sequence), speed, std::move(file)};
    thread_ = std::jthread([this, job = std::move(job)](const std::stop_token& stop) mutable {
        run(stop, std::move(job));
    });
}

void AudioExport::run(const std::stop_token& stop, Job job)
{
    setpriority(PRIO_PROCESS, 0, kNiceness); // applies to this thread and the threads it starts
    bool isWritten = false;
    QString error;
    try {
        isWritten = write(stop, std::move(job));
    } catch (const std::bad_alloc&) {
        error = tr("There is not enough memory to load the instrument a second time.");
    } catch (const std::exception& failure) {
        error = QString::fromUtf8(failure.what());
    }
    emit finished(isWritten, stop.stop_requested() ? QString() : error);
}

bool AudioExport::write(const std::stop_token& stop, Job job)
{
    RenderOptions options;
    options.speed = job.speed;
    // Created first, because it fails at once if the file cannot be written.
    AudioFileWriter file(job.file, options.rate);
    Progress progress(*this, job.sound.correctsTuning, stop);
    OfflineSound sound(std::move(job.sound), options.rate, progress);
    SequenceRenderer renderer(sound.player(), sound.source(), job.sequence.reading);
    renderer.document().recover(job.sequence);
    renderer.document().useVoices();
    sound.correctTuning();
    const bool rendered = renderer.render(
        options,
        [&](const float* left, const float* right, std::size_t frames) {
            file.write(left, right, frames);
        },
        [&](double done) { return progress.rendered(done); });
    if (rendered)
        file.commit();
    return rendered;
}

} // namespace velmora
