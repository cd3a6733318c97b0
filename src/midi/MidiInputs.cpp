#include "midi/MidiInputs.h"

#include "base/Log.h"
#include "midi/AlsaMidi.h"
#include "midi/JackMidi.h"
#include "platform/quiet.h"

#include <poll.h>
#include <spdlog/fmt/fmt.h>
#include <spdlog/fmt/ranges.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace velmora {

namespace {

/// How often a service that does not run is looked for.
constexpr int kRetryMilliseconds = 250;

/// Returns true for the port that the kernel always provides for programs to send to each other.
/// JACK's bridges show it as well.
bool isThrough(const MidiPort& port)
{
    return port.name.find("Midi Through") != std::string::npos;
}

std::vector<std::unique_ptr<MidiService>> systemServices()
{
    std::vector<std::unique_ptr<MidiService>> services;
    services.push_back(std::make_unique<AlsaMidi>());
    services.push_back(std::make_unique<JackMidi>());
    return services;
}

} // namespace

// See docs/decisions.md, 51 and 136.
std::vector<MidiPort> wantedPorts(std::vector<MidiPort> ports)
{
    const auto isDevice = [](const MidiPort& port) {
        return port.kind == MidiPort::Kind::Original && !isThrough(port);
    };
    if (std::ranges::any_of(ports, isDevice))
        std::erase_if(ports, [](const auto& port) { return port.kind == MidiPort::Kind::Mirror; });
    if (!std::ranges::all_of(ports, isThrough))
        std::erase_if(ports, isThrough);
    else if (ports.size() > 1)
        ports.resize(1);
    return ports;
}

// See docs/decisions.md, 49.
MidiDevice DeviceNumbers::add(const std::string& name, const std::vector<MidiDevice>& present)
{
    const auto isPresent = [&](const auto& matches) {
        return std::ranges::any_of(present, matches);
    };
    std::string unique = name;
    for (int copy = 2; isPresent([&](const MidiDevice& device) { return device.name == unique; });
         ++copy)
        unique = name + " " + std::to_string(copy);

    // Its former number, one that was never used, or one whose device has gone.
    auto found = std::ranges::find(names_, unique);
    if (found == names_.end())
        found = std::ranges::find(names_, "");
    const auto numberOf = [&](auto position) {
        return static_cast<std::size_t>(position - names_.begin());
    };
    for (auto i = names_.begin(); found == names_.end(); ++i)
        if (!isPresent([&](const MidiDevice& device) { return device.number == numberOf(i); }))
            found = i;
    *found = unique;
    return {numberOf(found), unique};
}

MidiInputs::MidiInputs(MidiReceiver& receiver) : MidiInputs(receiver, systemServices()) {}

MidiInputs::MidiInputs(MidiReceiver& receiver, std::vector<std::unique_ptr<MidiService>> services)
    : receiver_(receiver), services_(std::move(services)), stop_(eventfd(0, EFD_CLOEXEC))
{
    if (stop_ < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
    quietSoundLibraries();
    update();
    if (inputs_.empty())
        logger("midi").warn("no MIDI input: neither the ALSA sequencer nor JACK has a device");
    thread_ = std::thread([this] { watch(); });
}

MidiInputs::~MidiInputs()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(stop_, &one, sizeof one);
    thread_.join();
    disconnect({});
    close(stop_);
}

void MidiInputs::watch()
{
    for (;;) {
        std::vector<pollfd> events{{.fd = stop_, .events = POLLIN, .revents = 0}};
        for (const auto& service : services_)
            events.push_back({.fd = service->descriptor(), .events = POLLIN, .revents = 0});
        poll(events.data(), events.size(), kRetryMilliseconds);
        if (events[0].revents != 0)
            return;
        update();
    }
}

void MidiInputs::update()
{
    std::vector<MidiPort> ports;
    for (const auto& service : services_)
        std::ranges::copy(service->ports(), std::back_inserter(ports));
    ports = wantedPorts(std::move(ports));
    disconnect(ports);
    for (const MidiPort& port : ports)
        if (!isConnected(port))
            connect(port);
}

void MidiInputs::disconnect(const std::vector<MidiPort>& wanted)
{
    for (std::size_t i = inputs_.size(); i-- > 0;) {
        const bool isWanted = std::ranges::find(wanted, inputs_[i].port) != wanted.end();
        if (isWanted && !inputs_[i].connection->isBroken())
            continue;
        std::unique_lock lock(mutex_);
        Input input = std::move(inputs_[i]);
        inputs_.erase(inputs_.begin() + static_cast<std::ptrdiff_t>(i));
        lock.unlock();
        input.connection.reset();
        logger("midi").debug("{} has gone", input.device.name);
        receiver_.departed(input.device);
    }
}

void MidiInputs::connect(const MidiPort& port)
{
    std::vector<MidiDevice> present;
    for (const Input& input : inputs_)
        present.push_back(input.device);
    if (present.size() == kMidiDevices) {
        if (failed_.insert(port.name).second)
            logger("midi").warn("{} is left out, because {} MIDI inputs are connected already",
                                port.name, kMidiDevices);
        return;
    }
    const MidiDevice device = numbers_.add(port.name, present);
    try {
        Input input{port, device, port.service->connect(port, receiver_, device.number)};
        failed_.erase(device.name);
        logger("midi").debug("{}", device.name);
        std::unique_lock lock(mutex_);
        inputs_.push_back(std::move(input));
        lock.unlock();
        receiver_.arrived(device);
        inputs_.back().connection->start();
    } catch (const MidiConnectionError& error) {
        if (!failed_.insert(device.name).second)
            return;
        // Diagnostics keep their texts: see docs/decisions.md, 125.
        logger("midi").debug("{} err = {}", error.operation(), error.code());
        logger("midi").warn("cannot open the MIDI input {}: {}", device.name, error.what());
    }
}

bool MidiInputs::isConnected(const MidiPort& port) const
{
    return std::ranges::find(inputs_, port, &Input::port) != inputs_.end();
}

std::vector<std::string> MidiInputs::names() const
{
    const std::lock_guard lock(mutex_);
    std::vector<std::string> names;
    for (const Input& input : inputs_)
        names.push_back(input.device.name);
    std::ranges::sort(names);
    return names;
}

std::string MidiInputs::services() const
{
    const std::lock_guard lock(mutex_);
    std::set<std::string> names;
    for (const Input& input : inputs_)
        names.insert(input.port.service->name());
    return fmt::format("{}", fmt::join(names, ", "));
}

} // namespace velmora
