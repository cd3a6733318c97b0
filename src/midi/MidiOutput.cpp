#include "midi/MidiOutput.h"

#include "midi/JackMidiOutput.h"

#include <RtMidi.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace velmora {

namespace {

/// The clients of the inputs: see docs/decisions.md, 48.
constexpr const char* kInputs = "MidiClient1";

/// Calls `use(midi, port)` for each port of the ALSA sequencer, until it returns true.
template <class Use> void forAlsaPorts(const Use& use)
{
    if (!std::filesystem::exists("/dev/snd/seq"))
        return; // RtMidi would print an error
    try {
        auto midi = std::make_unique<RtMidiOut>(RtMidi::LINUX_ALSA, "Velmora Tuning");
        // Without a callback, RtMidi prints warnings.
        midi->setErrorCallback([](RtMidiError::Type, const std::string&, void*) {}, nullptr);
        for (unsigned port = 0, count = midi->getPortCount(); port < count; ++port)
            if (use(midi, port))
                return;
    } catch (const RtMidiError&) {
        return; // the service does not run
    }
}

} // namespace

std::vector<std::string> MidiOutput::names()
{
    std::vector<std::string> names = JackMidiOutput::ports();
    forAlsaPorts([&](const std::unique_ptr<RtMidiOut>& midi, unsigned port) {
        names.push_back(midi->getPortName(port));
        return false;
    });
    std::erase_if(names, [](const std::string& name) {
        return name.starts_with(kInputs) || name.starts_with("Velmora");
    });
    std::ranges::sort(names);
    return names;
}

MidiOutput::MidiOutput(const std::string& name) : name_(name)
{
    forAlsaPorts([&](std::unique_ptr<RtMidiOut>& midi, unsigned port) {
        if (midi->getPortName(port) != name)
            return false;
        midi->openPort(port, "Tuning");
        if (midi->isPortOpen())
            alsa_ = std::move(midi);
        return true;
    });
    if (alsa_)
        return;
    try {
        jack_ = std::make_unique<JackMidiOutput>(name);
    } catch (const std::runtime_error&) {
        throw std::runtime_error("the MIDI output " + name + " cannot be connected");
    }
}

MidiOutput::~MidiOutput() = default;

bool MidiOutput::isLost() const
{
    return jack_ && jack_->isLost();
}

void MidiOutput::send(MidiPacket message)
{
    try {
        if (alsa_)
            alsa_->sendMessage(message.data(), message.size());
        else
            jack_->send(message);
    } catch (const std::runtime_error&) {
        throw std::runtime_error("the MIDI output " + name_ + " takes no message");
    }
}

} // namespace velmora
