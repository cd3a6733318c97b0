#include "audio/WritingOutput.h"

#include "audio/PeriodClock.h"
#include "audio/Playback.h"
#include "base/Clock.h"

#include <pthread.h>
#include <sched.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>
#include <utility>
#include <vector>

namespace velmora {

namespace {

/// How long the end of an output waits for its thread. A new stream of PulseAudio may keep the
/// thread for two seconds, and the end of the program should not wait for that.
constexpr std::chrono::milliseconds kPatience{250};

/// The lowest useful priority; the servers' own threads have higher ones.
constexpr int kPriority = 5;

/// How often the delay of the device is asked for, in seconds.
constexpr double kDelayInterval = 0.5;

constexpr double kUsualRate = 48000.0;

/// The period of an output that nobody hears. A longer one lets the machine rest.
constexpr std::size_t kSilentPeriod = 2048;

/// What the thread that writes shares with the output.
struct WritingPlayback : Playback {
    std::unique_ptr<SoundWriter> writer;
    std::atomic<bool> isLost{false}, isStopped{false};
};

/// Raises the priority of this thread if the user is allowed to.
void makeRealTime()
{
    sched_param parameter{};
    parameter.sched_priority = kPriority;
    pthread_setschedparam(pthread_self(), SCHED_FIFO, &parameter);
}

void playThrough(WritingPlayback& playback)
{
    makeRealTime();
    SoundWriter& writer = *playback.writer;
    const std::size_t frames = writer.period();
    const double length = static_cast<double>(frames) / writer.rate();
    std::vector<float> left(frames), right(frames), samples(2 * frames);
    PeriodClock clock(static_cast<double>(writer.periodsAhead()) * length);
    double delayAsked = 0.0;
    while (!playback.isStopped) {
        const double now = getTime();
        playback.render(left.data(), right.data(), frames, clock.next(now, length));
        for (std::size_t i = 0; i < frames; ++i) {
            samples[2 * i] = left[i];
            samples[2 * i + 1] = right[i];
        }
        if (now - delayAsked > kDelayInterval) {
            playback.latency = writer.delay();
            delayAsked = now;
        }
        const SoundWriter::Written written = writer.write(samples.data());
        if (written == SoundWriter::Written::NotAtAll) {
            playback.isLost = true;
            return;
        }
        if (written == SoundWriter::Written::TooLate || clock.wasLate())
            playback.lostPeriods.add();
    }
}

class WritingOutput : public PlaybackOutput<WritingPlayback> {
public:
    WritingOutput(std::string driver, std::string device, std::unique_ptr<SoundWriter> writer)
        : PlaybackOutput(std::move(driver), std::move(device), writer->rate())
    {
        playback().period = writer->period();
        playback().writer = std::move(writer);
    }

    ~WritingOutput() override
    {
        playback().setSource(nullptr);
        playback().isStopped = true;
        if (!thread_.joinable())
            return;
        if (hasEnded_.wait_for(kPatience) == std::future_status::ready)
            thread_.join();
        else
            thread_.detach();
    }

    void start(AudioSource& source) override
    {
        playback().setSource(&source);
        std::packaged_task<void()> task([playback = sharedPlayback()] { playThrough(*playback); });
        hasEnded_ = task.get_future();
        thread_ = std::thread(std::move(task));
    }

    bool isLost() const override { return playback().isLost; }

private:
    std::future<void> hasEnded_;
    std::thread thread_;
};

/// Takes sound at the pace of a device and drops it.
class SilentWriter : public SoundWriter {
public:
    explicit SilentWriter(const OutputSettings& settings)
        : rate_(settings.rate > 0.0 ? settings.rate : kUsualRate),
          period_(settings.period > 0 ? settings.period : kSilentPeriod)
    {
    }

    double rate() const override { return rate_; }
    std::size_t period() const override { return period_; }
    std::size_t periodsAhead() const override { return 2; }

    Written write(const float* /*samples*/) override
    {
        const double length = static_cast<double>(period_) / rate_;
        const double now = getTime();
        // After a long interruption, the lost periods are not made up for.
        next_ = std::max(next_ + length, now);
        std::this_thread::sleep_for(std::chrono::duration<double>(next_ - now));
        return Written::InTime;
    }

    double delay() override { return 0.0; }

private:
    double rate_;
    std::size_t period_;
    double next_ = getTime(); ///< When the device has room again.
};

} // namespace

std::unique_ptr<AudioOutput> makeWritingOutput(const std::string& driver, const std::string& device,
                                               std::unique_ptr<SoundWriter> writer)
{
    return std::make_unique<WritingOutput>(driver, device, std::move(writer));
}

std::unique_ptr<AudioOutput> openSilentOutput(const OutputSettings& settings)
{
    return makeWritingOutput("none", {}, std::make_unique<SilentWriter>(settings));
}

} // namespace velmora
