#include "audio/PulseOutput.h"

#include "audio/WritingOutput.h"
#include "base/Clock.h"

#include <pulse/pulseaudio.h>

#include <cstdint>
#include <utility>

namespace velmora {

namespace {

constexpr double kMicrosecond = 1e-6;
constexpr std::uint32_t kSinkRate = 48000;
constexpr std::size_t kSinkPeriod = 256;

/// How much sound the server holds; with less, it often runs dry.
constexpr std::uint32_t kSinkPeriods = 3;

constexpr std::size_t kFrameBytes = 2 * sizeof(float);

/// How long a server that does not hang takes for an answer, in seconds. A sink that has been
/// asleep takes longer.
constexpr double kAnswerSeconds = 1.0, kSinkSeconds = 2.0;

/// A connection to the PulseAudio server. Used on one thread at a time, and works in its functions
/// only.
class PulseConnection {
public:
    PulseConnection()
        : loop_(pa_mainloop_new(), pa_mainloop_free),
          context_(pa_context_new(pa_mainloop_get_api(loop_.get()), "Velmora"), pa_context_unref)
    {
    }

    ~PulseConnection() { pa_context_disconnect(context_.get()); }

    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    pa_context* context() { return context_.get(); }

    /// Returns false if no server answers.
    bool open()
    {
        // See docs/decisions.md, 135.
        return pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0 &&
               runUntil(kAnswerSeconds, [this] {
                   return pa_context_get_state(context_.get()) == PA_CONTEXT_READY;
               });
    }

    /// Works until a condition is met. Returns false if the server is lost or that takes longer.
    template <class Condition> bool runUntil(double seconds, const Condition& isMet)
    {
        const double deadline = getTime() + seconds;
        while (!isMet()) {
            const double left = deadline - getTime();
            if (left <= 0.0 || !PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get())) ||
                pa_mainloop_prepare(loop_.get(), static_cast<int>(left / kMicrosecond)) < 0 ||
                pa_mainloop_poll(loop_.get()) < 0 || pa_mainloop_dispatch(loop_.get()) < 0)
                return false;
        }
        return true;
    }

    /// Does what can be done at once, such as sending.
    void run()
    {
        while (pa_mainloop_iterate(loop_.get(), 0, nullptr) > 0)
            ;
    }

private:
    std::unique_ptr<pa_mainloop, void (*)(pa_mainloop*)> loop_;
    std::unique_ptr<pa_context, void (*)(pa_context*)> context_;
};

class PulseWriter : public SoundWriter {
public:
    explicit PulseWriter(const OutputSettings& settings)
        : rate_(settings.rate > 0.0 ? static_cast<std::uint32_t>(settings.rate) : kSinkRate),
          period_(settings.period > 0 ? settings.period : kSinkPeriod),
          stream_(nullptr, disconnect), isOpen_(connection_.open() && openStream(settings.device))
    {
    }

    bool isOpen() const { return isOpen_; }
    double rate() const override { return rate_; }
    std::size_t period() const override { return period_; }
    std::size_t periodsAhead() const override { return kSinkPeriods; }

    Written write(const float* samples) override
    {
        const std::size_t bytes = period_ * kFrameBytes;
        const bool hasRoom = connection_.runUntil(kSinkSeconds, [&] {
            return !isGood() || pa_stream_writable_size(stream_.get()) >= bytes;
        });
        if (!hasRoom || !isGood() ||
            pa_stream_write(stream_.get(), samples, bytes, nullptr, 0, PA_SEEK_RELATIVE) < 0)
            return Written::NotAtAll;
        connection_.run();
        return std::exchange(isDry_, false) ? Written::TooLate : Written::InTime;
    }

    double delay() override
    {
        pa_usec_t delay = 0;
        int isNegative = 0;
        const bool isKnown = pa_stream_get_latency(stream_.get(), &delay, &isNegative) == 0;
        return isKnown && isNegative == 0 ? static_cast<double>(delay) * kMicrosecond : 0.0;
    }

private:
    static void disconnect(pa_stream* stream)
    {
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }

    bool isGood() const { return PA_STREAM_IS_GOOD(pa_stream_get_state(stream_.get())) != 0; }

    bool openStream(const std::string& sink)
    {
        const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, rate_, 2};
        stream_.reset(pa_stream_new(connection_.context(), "Music", &format, nullptr));
        if (!stream_)
            return false;
        const auto noteDry = [](pa_stream* /*stream*/, void* isDry) {
            *static_cast<bool*>(isDry) = true;
        };
        pa_stream_set_underflow_callback(stream_.get(), noteDry, &isDry_);
        const auto bytes = static_cast<std::uint32_t>(period_ * kFrameBytes);
        constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
        const pa_buffer_attr buffer{kServersChoice, kSinkPeriods * bytes, kServersChoice, bytes,
                                    kServersChoice};
        unsigned flags =
            PA_STREAM_ADJUST_LATENCY | PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE;
        // Otherwise the server would move the stream without a word if the chosen sink vanishes.
        if (!sink.empty())
            flags |= PA_STREAM_DONT_MOVE;
        return pa_stream_connect_playback(stream_.get(), sink.empty() ? nullptr : sink.c_str(),
                                          &buffer, static_cast<pa_stream_flags_t>(flags), nullptr,
                                          nullptr) >= 0 &&
               connection_.runUntil(
                   kSinkSeconds,
                   [this] { return pa_stream_get_state(stream_.get()) != PA_STREAM_CREATING; }) &&
               isGood();
    }

    std::uint32_t rate_;
    std::size_t period_;
    bool isDry_ = false; ///< The server has run out of sound.
    PulseConnection connection_;
    std::unique_ptr<pa_stream, void (*)(pa_stream*)> stream_;
    bool isOpen_;
};

void collectSink(pa_context* /*context*/, const pa_sink_info* sink, int isLast, void* data)
{
    if (isLast == 0)
        static_cast<std::vector<OutputDevice>*>(data)->push_back({sink->name, sink->description});
}

} // namespace

std::optional<std::vector<OutputDevice>> pulseDevices()
{
    PulseConnection connection;
    if (!connection.open())
        return std::nullopt;
    std::vector<OutputDevice> sinks;
    const std::unique_ptr<pa_operation, void (*)(pa_operation*)> listing(
        pa_context_get_sink_info_list(connection.context(), collectSink, &sinks),
        pa_operation_unref);
    const bool isComplete = connection.runUntil(
        kAnswerSeconds, [&] { return pa_operation_get_state(listing.get()) == PA_OPERATION_DONE; });
    pa_operation_cancel(listing.get());
    return isComplete ? std::optional(std::move(sinks)) : std::nullopt;
}

std::unique_ptr<AudioOutput> openPulseOutput(const OutputSettings& settings)
{
    auto writer = std::make_unique<PulseWriter>(settings);
    if (!writer->isOpen())
        return nullptr;
    return makeWritingOutput("pulseaudio", settings.device, std::move(writer));
}

} // namespace velmora
