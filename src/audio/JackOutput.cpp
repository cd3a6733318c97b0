#include "audio/JackOutput.h"

#include "audio/Playback.h"
#include "base/Log.h"
#include "platform/JackClient.h"
#include "platform/Uncancelled.h"
#include "platform/jackTime.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

/// Returns the audio input ports of a client, or the physical ones of all clients.
std::vector<std::string> playbackPorts(jack_client_t* jack, const std::string& client = {})
{
    const unsigned long flags = JackPortIsInput | (client.empty() ? JackPortIsPhysical : 0);
    const std::unique_ptr<const char*[], void (*)(void*)> names(
        jack_get_ports(jack, nullptr, JACK_DEFAULT_AUDIO_TYPE, flags), jack_free);
    std::vector<std::string> ports;
    for (std::size_t i = 0; names && names[i] != nullptr; ++i) {
        const std::string port = names[i];
        if (client.empty() || port.starts_with(client + ":"))
            ports.push_back(port);
    }
    return ports;
}

/// What libjack's callbacks use.
struct JackPlayback : Playback {
    jack_client_t* client = nullptr;
    std::array<jack_port_t*, 2> ports{};
    std::atomic<jack_nframes_t> rate{0};
};

int processPeriod(jack_nframes_t frames, void* data)
{
    const Uncancelled uncancelled;
    auto& playback = *static_cast<JackPlayback*>(data);
    const auto buffer = [&](std::size_t port) {
        return static_cast<float*>(jack_port_get_buffer(playback.ports[port], frames));
    };
    playback.render(buffer(0), buffer(1), frames, jackPeriod(playback.client).start);
    return 0;
}

int changePeriod(jack_nframes_t frames, void* data)
{
    static_cast<JackPlayback*>(data)->period = frames;
    return 0;
}

/// PipeWire's server may change its rate at any time.
int changeRate(jack_nframes_t rate, void* data)
{
    static_cast<JackPlayback*>(data)->rate = rate;
    return 0;
}

int countLostPeriod(void* data)
{
    static_cast<JackPlayback*>(data)->lostPeriods.add();
    return 0;
}

void changeLatency(jack_latency_callback_mode_t mode, void* data)
{
    auto& playback = *static_cast<JackPlayback*>(data);
    if (mode != JackPlaybackLatency)
        return;
    jack_latency_range_t range{};
    jack_port_get_latency_range(playback.ports[0], mode, &range);
    playback.latency = range.max / static_cast<double>(jack_get_sample_rate(playback.client));
}

class JackOutput : public PlaybackOutput<JackPlayback> {
public:
    JackOutput(std::unique_ptr<JackClient> client, const OutputSettings& settings)
        : PlaybackOutput("jack", settings.device, jack_get_sample_rate(client->get())),
          client_(std::move(client))
    {
        jack_client_t* jack = client_->get();
        playback().client = jack;
        playback().period = jack_get_buffer_size(jack);
        playback().rate = jack_get_sample_rate(jack);
        client_->keep(sharedPlayback());
        jack_set_process_callback(jack, processPeriod, &playback());
        jack_set_buffer_size_callback(jack, changePeriod, &playback());
        jack_set_sample_rate_callback(jack, changeRate, &playback());
        jack_set_xrun_callback(jack, countLostPeriod, &playback());
        jack_set_latency_callback(jack, changeLatency, &playback());
    }

    ~JackOutput() override { playback().setSource(nullptr); }

    /// Creates the ports and sets the period; 0 leaves it as it is. Returns false if the server
    /// gives no ports.
    bool prepare(std::size_t period)
    {
        const bool isAnswered = client_->call([playback = sharedPlayback(), period](auto* jack) {
            constexpr std::array kNames{"left", "right"};
            for (std::size_t i = 0; i < kNames.size(); ++i)
                playback->ports[i] = jack_port_register(jack, kNames[i], JACK_DEFAULT_AUDIO_TYPE,
                                                        JackPortIsOutput, 0);
            if (period != 0 && period != playback->period &&
                jack_set_buffer_size(jack, static_cast<jack_nframes_t>(period)) != 0)
                logger("audio").warn("JACK does not accept a period of {} frames", period);
        });
        return isAnswered && playback().ports[0] != nullptr && playback().ports[1] != nullptr;
    }

    void start(AudioSource& source) override
    {
        playback().setSource(&source);
        client_->call([](jack_client_t* jack) { jack_activate(jack); });
        reconnect();
    }

    void reconnect() override
    {
        jack_client_t* jack = client_->get();
        const auto exists = [jack](const std::string& port) {
            return jack_port_by_name(jack, port.c_str()) != nullptr;
        };
        // The user may have disconnected ports that are still there. That is left as it is.
        if (isLost() || (!targets_.empty() && std::ranges::all_of(targets_, exists)))
            return;
        targets_ = playbackPorts(jack, device());
        isDeviceMissing_ = targets_.empty() && !device().empty();
        client_->call([playback = sharedPlayback(), targets = targets_](jack_client_t* client) {
            for (std::size_t i = 0; i < std::min(targets.size(), playback->ports.size()); ++i)
                jack_connect(client, jack_port_name(playback->ports[i]), targets[i].c_str());
        });
    }

    bool isLost() const override
    {
        return client_->isLost() || isDeviceMissing_ || playback().rate != rate();
    }

    std::optional<bool> canReach(const std::string& device) const override
    {
        return !client_->isLost() && !playbackPorts(client_->get(), device).empty();
    }

private:
    std::vector<std::string> targets_; ///< The ports that were there when it was connected.
    std::atomic<bool> isDeviceMissing_{false};
    std::unique_ptr<JackClient> client_;
};

} // namespace

std::unique_ptr<AudioOutput> openJackOutput(const OutputSettings& settings)
{
    auto client = JackClient::open("velmora");
    if (!client ||
        (!settings.device.empty() && playbackPorts(client->get(), settings.device).empty()))
        return nullptr;
    auto output = std::make_unique<JackOutput>(std::move(client), settings);
    if (!output->prepare(settings.period))
        return nullptr;
    return output;
}

std::optional<std::vector<OutputDevice>> jackDevices()
{
    const auto client = JackClient::open("velmora-devices");
    if (!client)
        return std::nullopt;
    std::vector<OutputDevice> devices;
    for (const std::string& port : playbackPorts(client->get())) {
        const std::string name = port.substr(0, port.find(':'));
        if (devices.empty() || devices.back().name != name)
            devices.push_back({name, name});
    }
    return devices;
}

} // namespace velmora
