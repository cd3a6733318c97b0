#include "midi/MidiOutput.h"

#include "platform/JackClient.h"

#include <RtMidi.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace velmora {

namespace {

constexpr const char* kClient = "Velmora Tuning";

/// The clients of the inputs: see docs/decisions.md, 48.
constexpr const char* kInputs = "MidiClient1";

/// Returns whether a service can be used. RtMidi prints an error otherwise.
bool runs(RtMidi::Api service)
{
    return service == RtMidi::LINUX_ALSA ? std::filesystem::exists("/dev/snd/seq")
                                         : JackClient::open(kClient) != nullptr;
}

/// Calls `use(midi, port)` for each port of the services that run, until it returns true.
template <class Use> void forPorts(const Use& use)
{
    for (const RtMidi::Api service : {RtMidi::LINUX_ALSA, RtMidi::UNIX_JACK}) {
        if (!runs(service))
            continue;
        try {
            auto midi = std::make_unique<RtMidiOut>(service, kClient);
            // Without a callback, RtMidi prints warnings.
            midi->setErrorCallback([](RtMidiError::Type, const std::string&, void*) {}, nullptr);
            for (unsigned port = 0, count = midi->getPortCount(); port < count; ++port)
                if (use(midi, port))
                    return;
        } catch (const RtMidiError&) {
            continue; // the service does not run
        }
    }
}

} // namespace

std::vector<std::string> MidiOutput::names()
{
    std::vector<std::string> names;
    forPorts([&](const std::unique_ptr<RtMidiOut>& midi, unsigned port) {
        const std::string name = midi->getPortName(port);
        if (!name.starts_with(kInputs) && !name.starts_with("Velmora"))
            names.push_back(name);
        return false;
    });
    std::ranges::sort(names);
    return names;
}

MidiOutput::MidiOutput(const std::string& name) : name_(name)
{
    forPorts([&](std::unique_ptr<RtMidiOut>& midi, unsigned port) {
        if (midi->getPortName(port) != name)
            return false;
        midi->openPort(port, "Tuning");
        if (midi->isPortOpen())
            port_ = std::move(midi);
        return true;
    });
    if (!port_)
        throw std::runtime_error("the MIDI output " + name + " cannot be connected");
}

MidiOutput::~MidiOutput() = default;

void MidiOutput::send(MidiPacket message)
{
    try {
        port_->sendMessage(message.data(), message.size());
    } catch (const RtMidiError&) {
        throw std::runtime_error("the MIDI output " + name_ + " takes no message");
    }
}

} // namespace velmora
