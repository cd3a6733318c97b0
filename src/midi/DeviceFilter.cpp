#include "midi/DeviceFilter.h"

namespace velmora {

DeviceFilter::Offsets DeviceFilter::allReleased()
{
    Offsets offsets;
    for (auto& channel : offsets)
        channel.fill(kReleased);
    return offsets;
}

void DeviceFilter::reset()
{
    offsets_ = allReleased();
}

MidiPacket DeviceFilter::read(MidiPacket message)
{
    if (message.empty())
        return {};
    const DeviceSettings settings = settings_;
    const std::uint8_t status = message.front();
    const std::uint8_t kind = status & midi::kKindMask;
    const bool hasChannel = status >= midi::kStatusBit && status < midi::kFirstSystemStatus;
    const bool isWanted = settings.isOn && (settings.channel == 0 || !hasChannel ||
                                            settings.channel == (status & midi::kChannelMask) + 1);
    if ((kind == midi::kNoteOn || kind == midi::kNoteOff) && message.size() >= 3 &&
        message[1] < midi::kStatusBit)
        return readNote(message, isWanted);
    return isWanted ? message : MidiPacket();
}

MidiPacket DeviceFilter::readNote(MidiPacket message, bool isWanted)
{
    const bool isPress = (message[0] & midi::kKindMask) == midi::kNoteOn && message[2] != 0;
    std::int16_t& held = offsets_[message[0] & midi::kChannelMask][message[1]];
    const bool isHeld = held != kReleased;
    const std::int16_t offset = isHeld ? held : settings().keyOffset;
    const int key = message[1] + offset;
    if (!isPress)
        held = kReleased;
    if (key < 0 || key >= midi::kStatusBit || (!isWanted && (isPress || !isHeld)))
        return {};
    if (isPress)
        held = offset;
    note_ = {message[0], static_cast<std::uint8_t>(key), message[2]};
    return note_;
}

} // namespace velmora
