#include "audio/AudioOutput.h"

#include "base/Clock.h"
#include "base/Log.h"
#include "platform/quiet.h"

#include <fluidsynth.h>
#include <jack/jack.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>

namespace velmora {

namespace {

constexpr double kUsualRate = 48000.0;

/// The requested period. A JACK server has its own.
constexpr int kPeriodFrames = 128;
constexpr int kPeriods = 2;

/// Returns the sample rate of the running JACK server, if there is one. FluidSynth does not ask for
/// it.
std::optional<double> jackRate()
{
    jack_client_t* client = jack_client_open("velmora-probe", JackNoStartServer, nullptr);
    if (client == nullptr)
        return std::nullopt;
    const double rate = jack_get_sample_rate(client);
    jack_client_close(client);
    return rate;
}

/// An output that uses one of FluidSynth's audio drivers.
class FluidAudioOutput : public AudioOutput {
public:
    FluidAudioOutput(const std::string& driver, double rate)
        : settings_(new_fluid_settings(), delete_fluid_settings),
          opened_(nullptr, delete_fluid_audio_driver), driver_(driver), rate_(rate)
    {
        fluid_settings_setstr(settings_.get(), "audio.driver", driver.c_str());
        fluid_settings_setstr(settings_.get(), "audio.jack.id", "velmora");
        fluid_settings_setint(settings_.get(), "audio.jack.autoconnect", 1);
        fluid_settings_setint(settings_.get(), "audio.period-size", kPeriodFrames);
        fluid_settings_setint(settings_.get(), "audio.periods", kPeriods);
        // A JACK server may run at a rate that FluidSynth does not support.
        if (fluid_settings_setnum(settings_.get(), "synth.sample-rate", rate) != FLUID_OK)
            logger("audio").warn("FluidSynth does not support the {:g} Hz of {}", rate, driver);
        else
            opened_.reset(new_fluid_audio_driver2(settings_.get(), callBack, this));
    }

    bool isOpen() const { return opened_ != nullptr; }

    void play(AudioSource* source) override
    {
        const std::lock_guard lock(mutex_);
        source_ = source;
    }

    const std::string& driver() const override { return driver_; }
    double rate() const override { return rate_; }
    std::size_t period() const override { return period_; }

private:
    static int callBack(void* data, int length, int /*effectCount*/, float** /*effects*/,
                        int outputCount, float** outputs)
    {
        static_cast<FluidAudioOutput*>(data)->fill(static_cast<std::size_t>(length), outputs,
                                                   outputCount);
        return FLUID_OK;
    }

    void fill(std::size_t frames, float** outputs, int outputCount)
    {
        period_ = frames;
        // Never wait here: if `play` is exchanging the source, the period is silent.
        const std::unique_lock lock(mutex_, std::try_to_lock);
        if (lock && source_ != nullptr && outputCount >= 2) {
            source_->render(outputs[0], outputs[1], frames, getTime());
        } else {
            for (int i = 0; i < outputCount; ++i)
                std::fill_n(outputs[i], frames, 0.0F);
        }
    }

    std::mutex mutex_;
    AudioSource* source_ = nullptr;
    std::atomic<std::size_t> period_{0};

    std::unique_ptr<fluid_settings_t, void (*)(fluid_settings_t*)> settings_;
    std::unique_ptr<fluid_audio_driver_t, void (*)(fluid_audio_driver_t*)> opened_;
    std::string driver_;
    double rate_;
};

} // namespace

std::unique_ptr<AudioOutput> AudioOutput::open()
{
    quietSoundLibraries();
    const std::optional<double> rateOfJack = jackRate();
    for (const std::string driver : {"jack", "pulseaudio", "alsa"}) {
        if (driver == "jack" && !rateOfJack)
            continue;
        const double rate = driver == "jack" ? *rateOfJack : kUsualRate;
        auto output = std::make_unique<FluidAudioOutput>(driver, rate);
        if (output->isOpen())
            return output;
    }
    logger("audio").warn("no audio output: the program runs without sound");
    return nullptr;
}

} // namespace velmora
