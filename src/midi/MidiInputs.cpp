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

/// Maps the name of each device to RtMidi's name for its first source port.
using Devices = std::map<std::string, std::string>;

std::vector<std::string> portNames(RtMidiIn& midi)
{
    std::vector<std::string> names(midi.getPortCount());
    for (unsigned i = 0; i < names.size(); ++i)
        names[i] = midi.getPortName(i);
    return names;
}

/// Returns true if there is a device other than the port that the kernel always provides for
/// programs to send to each other. JACK's bridge to ALSA shows that port as well.
bool hasRealDevice(const Devices& devices)
{
    return std::ranges::any_of(devices, [](const auto& device) {
        // See docs/decisions.md, 51.
        return device.first.find("Midi Through") == std::string::npos;
    });
}

/// Returns all source ports of an API, which must be running.
std::vector<std::string> sources(RtMidi::Api api)
{
    try {
        RtMidiIn midi(api, "Velmora");
        return portNames(midi);
    } catch (const RtMidiError& error) {
        logger("midi").debug("RtMidi: {}", error.getMessage());
        return {};
    }
}

/// Returns the sequencer client in a name of RtMidi's form "CLIENT NAME:PORT NAME 20:0".
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

/// Returns the clients of the ALSA sequencer that have a source, except those of this process.
Devices alsaDevices()
{
    // Without a sequencer, RtMidi would print to standard error.
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
        // See docs/decisions.md, 50.
        if (!client || !seen.insert(*client).second)
            continue; // another port of the same device
        if (snd_seq_get_any_client_info(sequencer.get(), *client, info.get()) < 0 ||
            snd_seq_client_info_get_pid(info.get()) == getpid())
            continue;
        // See docs/decisions.md, 49.
        devices.insert_or_assign(snd_seq_client_info_get_name(info.get()), port);
    }
    return devices;
}

/// Returns the sources of JACK. JACK has ports but no devices, and all hardware ports belong to one
/// client, so each source counts as a device and is named by its full port name.
Devices jackDevices()
{
    // Without a server, RtMidi would print to standard error.
    const std::unique_ptr<jack_client_t, int (*)(jack_client_t*)> client(
        jack_client_open("Velmora", JackNoStartServer, nullptr), jack_client_close);
    if (!client)
        return {};
    Devices devices;
    for (const std::string& port : sources(RtMidi::UNIX_JACK))
        devices.emplace(port, port);
    return devices;
}

/// Logs a failed operation on a device.
void logFailure(const char* operation, RtMidiError::Type type, const std::string& device,
                const std::string& reason)
{
    const Logger log = logger("midi");
    // Diagnostics keep their texts: see docs/decisions.md, 125.
    log.debug("{} err = {}", operation, static_cast<int>(type));
    log.warn("cannot open the MIDI input {}: {}", device, reason);
}

void receive(double /*seconds*/, std::vector<unsigned char>* message, void* receiver)
{
    (*static_cast<const MidiReceiver*>(receiver))(*message);
}

} // namespace

/// The connection to one device, with its own client and port.
/// See docs/decisions.md, 48.
class MidiInputs::Input {
public:
    /// Creates the client. Throws RtMidiError if that fails.
    Input(RtMidi::Api api, std::string name, MidiReceiver& receiver)
        : name_(std::move(name)), midi_(api, "MidiClient1")
    {
        midi_.setErrorCallback(keepError, this);
        midi_.setCallback(receive, &receiver);
    }

    /// Connects a source by the name of its RtMidi port. Returns false and logs the reason if that
    /// fails.
    bool connect(const std::string& source)
    {
        const std::vector<std::string> ports = portNames(midi_);
        unsigned number = 0;
        while (number < ports.size() && ports[number] != source)
            ++number;
        if (number == ports.size()) {
            logFailure("MIDIPortConnectSource", RtMidiError::INVALID_DEVICE, name_,
                       "it has disappeared");
            return false;
        }
        error_.reset();
        midi_.openPort(number, "Port1");
        if (!error_)
            return true;
        // RtMidi creates and connects the port in one step; only its message says which part
        // failed.
        const bool hasPort = errorText_.find("connection") != std::string::npos ||
                             errorText_.find("subscription") != std::string::npos;
        logFailure(hasPort ? "MIDIPortConnectSource" : "MIDIInputPortCreate", *error_, name_,
                   errorText_);
        return false;
    }

    const std::string& name() const { return name_; }

private:
    static void keepError(RtMidiError::Type type, const std::string& text, void* self)
    {
        static_cast<Input*>(self)->error_ = type;
        static_cast<Input*>(self)->errorText_ = text;
    }

    std::string name_;
    std::optional<RtMidiError::Type> error_; ///< The error of the last attempt to connect.
    std::string errorText_;
    RtMidiIn midi_;
};

MidiInputs::MidiInputs(MidiReceiver receiver) : receiver_(std::move(receiver))
{
    quietSoundLibraries();
    RtMidi::Api api = RtMidi::LINUX_ALSA;
    Devices devices = alsaDevices();
    if (!hasRealDevice(devices)) {
        Devices others = jackDevices();
        if (devices.empty() || hasRealDevice(others)) {
            api = RtMidi::UNIX_JACK;
            devices = std::move(others);
        }
    }
    if (devices.empty()) {
        logger("midi").warn("no MIDI input: neither the ALSA sequencer nor JACK has a device");
        return;
    }
    api_ = api == RtMidi::LINUX_ALSA ? "ALSA" : "JACK";
    for (const auto& [name, source] : devices) {
        logger("midi").debug("{}", name);
        try {
            auto input = std::make_unique<Input>(api, name, receiver_);
            if (input->connect(source))
                inputs_.push_back(std::move(input));
        } catch (const RtMidiError& error) {
            logFailure("MIDIClientCreate", error.getType(), name, error.getMessage());
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
