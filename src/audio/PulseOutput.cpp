#include "audio/PulseOutput.h"

#include "audio/WritingOutput.h"
#include "base/Clock.h"
#include "base/Log.h"

#include <pulse/pulseaudio.h>
#include <pulse/simple.h>

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr double kMicrosecond = 1e-6;
constexpr double kAnswerSeconds = 1.0;
constexpr std::uint32_t kSinkRate = 48000;
constexpr std::size_t kSinkPeriod = 256;

/// How much sound the server holds; with less, it often runs dry.
constexpr std::uint32_t kSinkPeriods = 3;

constexpr std::size_t kFrameBytes = 2 * sizeof(float);

void collectSink(pa_context* /*context*/, const pa_sink_info* sink, int isLast, void* data)
{
    if (isLast == 0)
        static_cast<std::vector<OutputDevice>*>(data)->push_back({sink->name, sink->description});
}

/// A short connection to the PulseAudio server that gives up if the server does not answer.
class PulseQuery {
public:
    PulseQuery()
        : loop_(pa_mainloop_new(), pa_mainloop_free),
          context_(pa_context_new(pa_mainloop_get_api(loop_.get()), "Velmora"), pa_context_unref),
          deadline_(getTime() + kAnswerSeconds)
    {
    }

    ~PulseQuery() { pa_context_disconnect(context_.get()); }

    PulseQuery(const PulseQuery&) = delete;
    PulseQuery& operator=(const PulseQuery&) = delete;

    std::optional<std::vector<OutputDevice>> sinks()
    {
        // See docs/decisions.md, 135.
        if (pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 ||
            !runUntil([this] { return pa_context_get_state(context_.get()) == PA_CONTEXT_READY; }))
            return std::nullopt;
        std::vector<OutputDevice> sinks;
        const std::unique_ptr<pa_operation, void (*)(pa_operation*)> listing(
            pa_context_get_sink_info_list(context_.get(), collectSink, &sinks), pa_operation_unref);
        const bool isComplete =
            runUntil([&] { return pa_operation_get_state(listing.get()) == PA_OPERATION_DONE; });
        pa_operation_cancel(listing.get());
        return isComplete ? std::optional(std::move(sinks)) : std::nullopt;
    }

private:
    template <class Condition> bool runUntil(Condition isMet)
    {
        while (!isMet()) {
            const double left = deadline_ - getTime();
            if (left <= 0.0 || !PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get())) ||
                pa_mainloop_prepare(loop_.get(), static_cast<int>(left / kMicrosecond)) < 0 ||
                pa_mainloop_poll(loop_.get()) < 0 || pa_mainloop_dispatch(loop_.get()) < 0)
                return false;
        }
        return true;
    }

    std::unique_ptr<pa_mainloop, void (*)(pa_mainloop*)> loop_;
    std::unique_ptr<pa_context, void (*)(pa_context*)> context_;
    double deadline_;
};

class PulseWriter : public SoundWriter {
public:
    explicit PulseWriter(const OutputSettings& settings)
        : rate_(settings.rate > 0.0 ? static_cast<std::uint32_t>(settings.rate) : kSinkRate),
          period_(settings.period > 0 ? settings.period : kSinkPeriod),
          stream_(open(settings.device), pa_simple_free)
    {
    }

    bool isOpen() const { return stream_ != nullptr; }
    double rate() const override { return rate_; }
    std::size_t period() const override { return period_; }
    std::size_t periodsAhead() const override { return kSinkPeriods; }

    Written write(const float* samples) override
    {
        return pa_simple_write(stream_.get(), samples, period_ * kFrameBytes, nullptr) < 0
                   ? Written::NotAtAll
                   : Written::InTime;
    }

    double delay() override
    {
        const pa_usec_t delay = pa_simple_get_latency(stream_.get(), nullptr);
        return delay == PA_USEC_INVALID ? 0.0 : static_cast<double>(delay) * kMicrosecond;
    }

private:
    pa_simple* open(const std::string& sink) const
    {
        const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, rate_, 2};
        const auto bytes = static_cast<std::uint32_t>(period_ * kFrameBytes);
        constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
        const pa_buffer_attr buffer{kServersChoice, kSinkPeriods * bytes, kServersChoice, bytes,
                                    kServersChoice};
        return pa_simple_new(nullptr, "Velmora", PA_STREAM_PLAYBACK,
                             sink.empty() ? nullptr : sink.c_str(), "Music", &format, nullptr,
                             &buffer, nullptr);
    }

    std::uint32_t rate_;
    std::size_t period_;
    std::unique_ptr<pa_simple, void (*)(pa_simple*)> stream_;
};

} // namespace

std::optional<std::vector<OutputDevice>> pulseDevices()
{
    return PulseQuery().sinks();
}

std::unique_ptr<AudioOutput> openPulseOutput(const OutputSettings& settings)
{
    // The simple interface would wait for ever for a server that hangs, and start one that is gone.
    const auto sinks = pulseDevices();
    if (!sinks || (!settings.device.empty() &&
                   std::none_of(sinks->begin(), sinks->end(), [&](const OutputDevice& sink) {
                       return sink.name == settings.device;
                   })))
        return nullptr;
    auto writer = std::make_unique<PulseWriter>(settings);
    if (!writer->isOpen())
        return nullptr;
    return makeWritingOutput("pulseaudio", settings.device, std::move(writer));
}

} // namespace velmora
