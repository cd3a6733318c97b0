#include "audio/AlsaOutput.h"

#include "audio/WritingOutput.h"

#include <alsa/asoundlib.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>
#include <utility>

namespace velmora {

namespace {

constexpr unsigned kCardRate = 48000;
constexpr std::size_t kCardPeriod = 256;
constexpr unsigned kCardPeriods = 2;

/// How long opening a device that is there may take.
constexpr std::chrono::seconds kLongestOpening{2};

class AlsaWriter : public SoundWriter {
public:
    /// A device that does not take what is written, such as samples of floats, is opened through
    /// ALSA's converter.
    explicit AlsaWriter(const OutputSettings& settings)
        : pcm_(nullptr, snd_pcm_close), isOpen_(open(deviceOf(settings), settings) ||
                                                open("plug:'" + deviceOf(settings) + "'", settings))
    {
    }

    bool isOpen() const { return isOpen_; }
    double rate() const override { return rate_; }
    std::size_t period() const override { return period_; }
    std::size_t periodsAhead() const override { return buffer_ / period_; }

    Written write(const float* samples) override
    {
        auto result = Written::InTime;
        for (snd_pcm_uframes_t written = 0; written < period_;) {
            const snd_pcm_sframes_t count =
                snd_pcm_writei(pcm_.get(), samples + 2 * written, period_ - written);
            if (count >= 0) {
                written += static_cast<snd_pcm_uframes_t>(count);
                continue;
            }
            if (snd_pcm_recover(pcm_.get(), static_cast<int>(count), 1) < 0)
                return Written::NotAtAll;
            if (count == -EPIPE)
                result = Written::TooLate;
        }
        return result;
    }

    double delay() override
    {
        snd_pcm_sframes_t frames = 0;
        return snd_pcm_delay(pcm_.get(), &frames) < 0 ? 0.0 : static_cast<double>(frames) / rate_;
    }

private:
    static std::string deviceOf(const OutputSettings& settings)
    {
        return settings.device.empty() ? "default" : settings.device;
    }

    bool open(const std::string& device, const OutputSettings& settings)
    {
        pcm_.reset();
        // A device that another program uses would block until that has closed it.
        snd_pcm_t* pcm = nullptr;
        if (snd_pcm_open(&pcm, device.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0)
            return false;
        pcm_.reset(pcm);
        return snd_pcm_nonblock(pcm, 0) >= 0 && choose(settings);
    }

    /// Chooses the rate and the period nearest to those that are wanted.
    bool choose(const OutputSettings& settings)
    {
        snd_pcm_t* pcm = pcm_.get();
        unsigned rate = settings.rate > 0.0 ? static_cast<unsigned>(settings.rate) : kCardRate;
        unsigned periods = kCardPeriods;
        period_ = settings.period > 0 ? settings.period : kCardPeriod;
        snd_pcm_hw_params_t* hardware = nullptr;
        snd_pcm_hw_params_alloca(&hardware);
        if (snd_pcm_hw_params_any(pcm, hardware) < 0 ||
            snd_pcm_hw_params_set_access(pcm, hardware, SND_PCM_ACCESS_RW_INTERLEAVED) < 0 ||
            snd_pcm_hw_params_set_format(pcm, hardware, SND_PCM_FORMAT_FLOAT) < 0 ||
            snd_pcm_hw_params_set_channels(pcm, hardware, 2) < 0 ||
            snd_pcm_hw_params_set_rate_near(pcm, hardware, &rate, nullptr) < 0 ||
            snd_pcm_hw_params_set_period_size_near(pcm, hardware, &period_, nullptr) < 0 ||
            snd_pcm_hw_params_set_periods_near(pcm, hardware, &periods, nullptr) < 0 ||
            snd_pcm_hw_params(pcm, hardware) < 0 ||
            snd_pcm_hw_params_get_buffer_size(hardware, &buffer_) < 0)
            return false;
        rate_ = rate;
        // Starting with a full buffer keeps the first periods from being lost.
        snd_pcm_sw_params_t* software = nullptr;
        snd_pcm_sw_params_alloca(&software);
        return snd_pcm_sw_params_current(pcm, software) >= 0 &&
               snd_pcm_sw_params_set_start_threshold(pcm, software, buffer_ - buffer_ % period_) >=
                   0 &&
               snd_pcm_sw_params_set_avail_min(pcm, software, period_) >= 0 &&
               snd_pcm_sw_params(pcm, software) >= 0;
    }

    std::unique_ptr<snd_pcm_t, int (*)(snd_pcm_t*)> pcm_;
    double rate_ = 0.0;
    snd_pcm_uframes_t period_ = 0, buffer_ = 0;
    bool isOpen_; ///< Last, because opening sets the others.
};

/// Opens a device on a thread of its own, because "default" may lead to a sound server that hangs.
/// Returns null if that takes too long, and until that has ended.
std::unique_ptr<AlsaWriter> openPatiently(const OutputSettings& settings)
{
    static std::atomic<bool> isOpening{false};
    if (isOpening.exchange(true))
        return nullptr;
    std::packaged_task<std::unique_ptr<AlsaWriter>()> task([settings] {
        auto writer = std::make_unique<AlsaWriter>(settings);
        isOpening = false;
        return writer;
    });
    auto opened = task.get_future();
    std::thread thread(std::move(task));
    if (opened.wait_for(kLongestOpening) == std::future_status::timeout) {
        thread.detach();
        return nullptr;
    }
    thread.join();
    return opened.get();
}

/// Returns an attribute of a device hint; empty if it has none.
std::string attribute(const void* hint, const char* name)
{
    const std::unique_ptr<char, void (*)(void*)> text(snd_device_name_get_hint(hint, name),
                                                      std::free);
    return text ? text.get() : "";
}

} // namespace

std::unique_ptr<AudioOutput> openAlsaOutput(const OutputSettings& settings)
{
    auto writer = openPatiently(settings);
    if (!writer || !writer->isOpen())
        return nullptr;
    return makeWritingOutput("alsa", settings.device, std::move(writer));
}

std::optional<std::vector<OutputDevice>> alsaDevices()
{
    void** hints = nullptr;
    if (snd_device_name_hint(-1, "pcm", &hints) < 0)
        return std::nullopt;
    std::vector<OutputDevice> devices;
    for (void** hint = hints; *hint != nullptr; ++hint) {
        const std::string name = attribute(*hint, "NAME");
        std::string title = attribute(*hint, "DESC");
        std::replace(title.begin(), title.end(), '\n', ' ');
        // The other names are plug-ins, which exist without a card.
        const bool isCard = name == "default" || name.find(":CARD=") != std::string::npos;
        if (isCard && attribute(*hint, "IOID") != "Input")
            devices.push_back({name, title.empty() ? name : title});
    }
    snd_device_name_free_hint(hints);
    return devices.empty() ? std::nullopt : std::optional(std::move(devices));
}

bool isAlsaDeviceBusy(const std::string& device)
{
    snd_pcm_t* pcm = nullptr;
    const int error = snd_pcm_open(&pcm, device.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK);
    if (error >= 0)
        snd_pcm_close(pcm);
    return error == -EBUSY;
}

} // namespace velmora
