#include "midi/MidiInputs.h"

#include "base/Log.h"
#include "platform/quiet.h"

#include <RtMidi.h>
#include <alsa/asoundlib.h>
#include <jack/jack.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace velmora {

namespace {

/// From a device's name to its first source, as RtMidi names that port.
using Devices = std::map<std::string, std::string>;

std::vector<std::string> portNames(RtMidiIn& midi)
{
    std::vector<std::string> names(midi.getPortCount());
    for (unsigned i = 0; i < names.size(); ++i)
        names[i] = midi.getPortName(i);
    return names;
}

/// Whether there is more than what the kernel always has: a port through which programs can send
/// to each other, which JACK's bridge to ALSA shows as well.
bool haveDevice(const Devices& devices)
{
    return std::ranges::any_of(devices, [](const auto& device) {
        return device.first.find("Midi Through") == std::string::npos;
    });
}

/// All source ports of an API that is known to answer.
std::vector<std::string> sources(RtMidi::Api api)
{
    try {
        RtMidiIn midi(api, "Velmora");
        return portNames(midi);
    } catch (const RtMidiError& error) {
        logger("platform").debug("RtMidi: {}", error.getMessage());
        return {};
    }
}

/// The sequencer client in RtMidi's "CLIENT NAME:PORT NAME 20:0".
std::optional<int> sequencerClient(const std::string& port)
{
    const std::size_t space = port.rfind(' ');
    int client = 0;
    const char* begin = port.data() + (space == std::string::npos ? 0 : space + 1);
    const auto [end, error] = std::from_chars(begin, port.data() + port.size(), client);
    if (error != std::errc() || *end != ':')
        return std::nullopt;
    return client;
}

/// The sequencer's clients that have a source, but those of this process.
Devices alsaDevices()
{
    // RtMidi would complain on standard error where there is no sequencer.
    snd_seq_t* opened = nullptr;
    if (snd_seq_open(&opened, "default", SND_SEQ_OPEN_INPUT, SND_SEQ_NONBLOCK) < 0)
        return {};
    const std::unique_ptr<snd_seq_t, int (*)(snd_seq_t*)> sequencer(opened, snd_seq_close);
    snd_seq_client_info_t* allocated = nullptr;
    if (snd_seq_client_info_malloc(&allocated) < 0)
        return {};
    const std::unique_ptr<snd_seq_client_info_t, void (*)(snd_seq_client_info_t*)> info(
        allocated, snd_seq_client_info_free);

    Devices devices;
    std::set<int> seen;
    for (const std::string& port : sources(RtMidi::LINUX_ALSA)) {
        const auto client = sequencerClient(port);
        if (!client || !seen.insert(*client).second)
            continue; // a further port of the device before
        if (snd_seq_get_any_client_info(sequencer.get(), *client, info.get()) < 0 ||
            snd_seq_client_info_get_pid(info.get()) == getpid())
            continue;
        devices.insert_or_assign(snd_seq_client_info_get_name(info.get()), port);
    }
    return devices;
}

/// JACK knows ports, not devices, and gathers the ports of all hardware under one client: every
/// source is a device of its own here, named by its full port name. It does not tell which process
/// a port belongs to; this program makes no MIDI outputs there.
Devices jackDevices()
{
    // RtMidi would complain on standard error where no server runs.
    const std::unique_ptr<jack_client_t, int (*)(jack_client_t*)> client(
        jack_client_open("Velmora", JackNoStartServer, nullptr), jack_client_close);
    if (!client)
        return {};
    Devices devices;
    for (const std::string& port : sources(RtMidi::UNIX_JACK))
        devices.emplace(port, port);
    return devices;
}

void receive(double /*seconds*/, std::vector<unsigned char>* message, void* receiver)
{
    (*static_cast<const MidiReceiver*>(receiver))(*message);
}

} // namespace

/// One device: a client and a port of its own.
class MidiInputs::Input {
public:
    /// Throws RtMidiError where the client cannot be made.
    Input(RtMidi::Api api, std::string name, MidiReceiver& receiver)
        : name_(std::move(name)), midi_(api, "MidiClient1")
    {
        midi_.setErrorCallback(keepError, this);
        midi_.setCallback(receive, &receiver);
    }

    /// Connects the source that RtMidi gives this name. Logs why not.
    bool connect(const std::string& source)
    {
        const std::vector<std::string> ports = portNames(midi_);
        unsigned number = 0;
        while (number < ports.size() && ports[number] != source)
            ++number;
        if (number == ports.size()) {
            logger("platform")
                .error("MIDIPortConnectSource err = {}",
                       static_cast<int>(RtMidiError::INVALID_DEVICE));
            return false;
        }
        error_.reset();
        midi_.openPort(number, "Port1");
        if (!error_)
            return true;
        // RtMidi makes and connects the port in one step; only its words tell which of them failed.
        const bool made = errorText_.find("connection") != std::string::npos ||
                          errorText_.find("subscription") != std::string::npos;
        logger("platform")
            .error("{} err = {}", made ? "MIDIPortConnectSource" : "MIDIInputPortCreate",
                   static_cast<int>(*error_));
        return false;
    }

    const std::string& name() const { return name_; }

private:
    static void keepError(RtMidiError::Type type, const std::string& text, void* self)
    {
        logger("platform").debug("RtMidi: {}", text);
        static_cast<Input*>(self)->error_ = type;
        static_cast<Input*>(self)->errorText_ = text;
    }

    std::string name_;
    std::optional<RtMidiError::Type> error_; // of the last call
    std::string errorText_;
    RtMidiIn midi_;
};

MidiInputs::MidiInputs(MidiReceiver receiver) : receiver_(std::move(receiver))
{
    quietSoundLibraries();
    RtMidi::Api api = RtMidi::LINUX_ALSA;
    Devices devices = alsaDevices();
    if (!haveDevice(devices)) {
        Devices ofJack = jackDevices();
        if (devices.empty() || haveDevice(ofJack)) {
            api = RtMidi::UNIX_JACK;
            devices = std::move(ofJack);
        }
    }
    if (devices.empty()) {
        logger("platform").warn("no MIDI input: neither the ALSA sequencer nor JACK has a device");
        return;
    }
    api_ = api == RtMidi::LINUX_ALSA ? "ALSA" : "JACK";
    for (const auto& [name, source] : devices) {
        logger("platform").info("{}", name);
        try {
            auto input = std::make_unique<Input>(api, name, receiver_);
            if (input->connect(source))
                inputs_.push_back(std::move(input));
        } catch (const RtMidiError& error) {
            logger("platform")
                .error("MIDIClientCreate err = {}", static_cast<int>(error.getType()));
        }
    }
}

MidiInputs::~MidiInputs() = default;

std::vector<std::string> MidiInputs::names() const
{
    std::vector<std::string> names;
    names.reserve(inputs_.size());
    for (const auto& input : inputs_)
        names.push_back(input->name());
    return names;
}

} // namespace velmora
