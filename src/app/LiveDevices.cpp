#include "app/LiveDevices.h"

#include "app/AppDelegate.h"
#include "preferences/settings.h"

#include <QVariantMap>

#include <algorithm>

namespace velmora {

namespace {

/// The preference with the settings of the devices: a map from names to lists of whether the device
/// is on, its channel and its key offset.
constexpr const char* kSettings = "MidiDevices";

DeviceSettings deviceSettings(const QVariantList& values)
{
    DeviceSettings settings;
    if (values.size() != 3)
        return settings;
    settings.isOn = values[0].toBool();
    settings.channel = static_cast<std::int8_t>(std::clamp(values[1].toInt(), 0, midi::kChannels));
    settings.keyOffset = static_cast<std::int16_t>(
        std::clamp(values[2].toInt(), -kGreatestKeyOffset, kGreatestKeyOffset));
    return settings;
}

} // namespace

LiveDevices::LiveDevices(AppDelegate& application) : application_(application)
{
    const QVariantMap stored = preference(kSettings).toMap();
    for (auto device = stored.begin(); device != stored.end(); ++device)
        settings_[device.key().toStdString()] = deviceSettings(device.value().toList());
}

std::vector<KnownDevice> LiveDevices::devices() const
{
    const std::lock_guard lock(mutex_);
    std::map<std::string, KnownDevice> known;
    for (const auto& [name, settings] : settings_)
        known[name].settings = settings;
    for (const auto& slot : slots_)
        if (slot && slot->isConnected)
            known[slot->name] = {slot->name, slot->isConnected, slot->messages,
                                 slot->filter.settings()};
    std::vector<KnownDevice> devices;
    for (auto& [name, device] : known) {
        device.name = name;
        devices.push_back(std::move(device));
    }
    return devices;
}

std::string LiveDevices::getName(std::size_t number) const
{
    const std::lock_guard lock(mutex_);
    return slots_[number]->name;
}

void LiveDevices::setSettings(const std::string& name, DeviceSettings settings)
{
    const std::lock_guard lock(mutex_);
    settings_.erase(name);
    if (settings != DeviceSettings())
        settings_[name] = settings;
    store();
    for (const auto& slot : slots_) {
        if (!slot || slot->name != name)
            continue;
        const std::lock_guard playing(slot->playing);
        const DeviceSettings before = slot->filter.settings();
        slot->filter.setSettings(settings);
        // Keys that are still held are released as they were pressed, but a pedal is not, or a key
        // that hangs.
        if (before.isOn != settings.isOn || before.channel != settings.channel)
            slot->device.releaseKeys();
    }
}

void LiveDevices::store() const
{
    QVariantMap values;
    for (const auto& [name, settings] : settings_)
        values[QString::fromStdString(name)] =
            QVariantList{settings.isOn, settings.channel, settings.keyOffset};
    setPreference(kSettings, values);
}

DeviceSettings LiveDevices::settingsOf(const std::string& name) const
{
    const auto found = settings_.find(name);
    return found == settings_.end() ? DeviceSettings() : found->second;
}

void LiveDevices::arrived(const MidiDevice& device)
{
    {
        const std::lock_guard lock(mutex_);
        auto& slot = slots_[device.number];
        if (!slot)
            slot = std::make_unique<Slot>(application_, device.number);
        if (slot->name != device.name)
            slot->messages = 0;
        slot->name = device.name;
        slot->isConnected = true;
        const std::lock_guard playing(slot->playing);
        slot->filter.setSettings(settingsOf(device.name));
    }
    application_.organ().nameDevice(device.number, device.name);
    application_.announceMidiDevices();
}

void LiveDevices::departed(const MidiDevice& device)
{
    Slot& slot = *slots_[device.number];
    {
        const std::lock_guard playing(slot.playing);
        slot.filter.reset();
        slot.device.releaseKeys();
    }
    {
        const std::lock_guard lock(mutex_);
        slot.isConnected = false;
    }
    application_.announceMidiDevices();
}

void LiveDevices::received(std::size_t device, MidiPacket message, double time)
{
    Slot& slot = *slots_[device];
    slot.messages.fetch_add(1, std::memory_order_relaxed);
    application_.noteActivity();
    const std::lock_guard playing(slot.playing);
    const MidiPacket wanted = slot.filter.read(message);
    if (!wanted.empty())
        slot.device.receive(wanted, time);
}

// See docs/decisions.md, 179.
void LiveDevices::receivedExclusive(std::size_t device, MidiPacket message)
{
    Slot& slot = *slots_[device];
    slot.messages.fetch_add(1, std::memory_order_relaxed);
    if (slot.filter.settings().isOn && !application_.playing().settings().isPlain)
        application_.receivedTunings().receive(device, message);
}

} // namespace velmora
