#include "midi/midiRead.h"

#include "midi/messages.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// The controllers that move the sliders 0, 1, 2…
constexpr std::array<std::uint8_t, 5> kSliderControllers{midi::kChannelVolume, midi::kExpression,
                                                         midi::kVibratoRate, midi::kVibratoDepth,
                                                         midi::kVibratoDelay};

/// A data byte as a velocity or a volume.
float fraction(std::uint8_t value)
{
    return static_cast<float>(value / 127.0);
}

void readNote(std::uint8_t status, std::uint8_t key, std::uint8_t value, LiveInput& input)
{
    if (status == midi::kNoteOn && value != 0)
        input.keyOn(key, fraction(value));
    else
        input.keyOff(key);
}

void readController(std::uint8_t number, std::uint8_t value, LiveInput& input)
{
    const auto* slider = std::find(kSliderControllers.begin(), kSliderControllers.end(), number);
    if (slider != kSliderControllers.end())
        input.setVolume(fraction(value),
                        static_cast<std::size_t>(slider - kSliderControllers.begin()));
}

/// The bytes after the first `count`; none where there are fewer.
MidiPacket skip(MidiPacket bytes, std::size_t count)
{
    return bytes.subspan(std::min(count, bytes.size()));
}

/// Reads one packet; whether it pressed or released a key by a note message.
bool readPacket(MidiPacket bytes, LiveInput& input)
{
    bool notesChanged = false;
    while (!bytes.empty()) {
        const std::uint8_t first = bytes[0];
        const std::uint8_t status = first & midi::kKindMask;
        const bool whole = bytes.size() >= 3;
        if (status == midi::kNoteOn || status == midi::kNoteOff) {
            if (whole) {
                readNote(status, bytes[1], bytes[2], input);
                notesChanged = true;
            }
            bytes = skip(bytes, 3);
        } else if (status == midi::kChannelPressure) {
            bytes = skip(bytes, 2);
        } else {
            // Taken for a controller whatever the status: pitch bend and program change too.
            if (whole)
                readController(bytes[1], bytes[2], input);
            bytes = skip(bytes, 3);
        }
        // The rest of a message whose status did not come with it: three bytes were taken above,
        // one goes here, and whatever they are the key of that number is let go.
        if (first < midi::kStatusBit) {
            input.keyOff(first);
            bytes = skip(bytes, 1);
        }
    }
    return notesChanged;
}

} // namespace

void midiRead(MidiPacketList packets, LiveInput& input)
{
    bool notesChanged = false;
    for (const MidiPacket& packet : packets) {
        if (readPacket(packet, input))
            notesChanged = true;
    }
    if (notesChanged)
        input.midiInput();
}

} // namespace velmora
