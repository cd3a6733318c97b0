#include "app/AudioExport.h"

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
    Progress(AudioExport& audioExport, bool correctsTuning, std::size_t files, std::stop_token stop)
        : export_(audioExport), correctsTuning_(correctsTuning), files_(files),
          stop_(std::move(stop))
    {
    }

    void startProgress(long steps) override
    {
        steps_ = std::max(steps, 1L);
        done_ = 0;
    }

    void updateProgress(unsigned steps, const std::string& /*text*/) override
    {
        done_ += steps;
        tell(AudioExport::tr("Loading the instrument"),
             std::min(static_cast<double>(done_) / static_cast<double>(steps_), 1.0));
    }

    bool isCancelled() const override { return stop_.stop_requested(); }
    bool correctsTuning() const override { return correctsTuning_; }

    /// Returns false if the export was cancelled.
    bool rendered(std::size_t file, double done)
    {
        tell(files_ == 1 ? AudioExport::tr("Rendering")
                         : AudioExport::tr("Rendering voice %1 of %2").arg(file + 1).arg(files_),
             done);
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
    const std::size_t files_;
    std::stop_token stop_;
    long steps_ = 1, done_ = 0;
    QString what_;
    int percent_ = -1;
};

} // namespace

AudioExport::~AudioExport() = default;

void AudioExport::start(SoundSettings sound, UnsavedSequence sequence, double speed,
                        std::vector<SoundTarget> targets)
{
    Job job{std::move(sound), std::move(sequence), speed, std::move(targets)};
    thread_ =
        std::jthread([this, job = std::move(job)](const std::stop_token& stop) { run(stop, job); });
}

void AudioExport::run(const std::stop_token& stop, const Job& job)
{
    setpriority(PRIO_PROCESS, 0, kNiceness); // applies to this thread and the threads it starts
    bool isWritten = false;
    QString error;
    try {
        isWritten = write(stop, job);
    } catch (const std::bad_alloc&) {
        error = tr("There is not enough memory to load the instrument a second time.");
    } catch (const std::exception& failure) {
        error = QString::fromUtf8(failure.what());
    }
    emit finished(isWritten, stop.stop_requested() ? QString() : error);
}

bool AudioExport::write(const std::stop_token& stop, const Job& job)
{
    RenderOptions options;
    options.speed = job.speed;
    Progress progress(*this, job.sound.correctsTuning, job.targets.size(), stop);
    return renderFiles(
        job.targets, job.sound, job.sequence, options, progress,
        [&](std::size_t file, double done) { return progress.rendered(file, done); });
}

} // namespace velmora
