#include "midi/midiRead.h"

#include "midi/messages.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// The controllers that move sliders 0 to 4. See docs/decisions.md, 47.
constexpr std::array<std::uint8_t, 5> kSliderControllers{midi::kChannelVolume, midi::kExpression,
                                                         midi::kVibratoRate, midi::kVibratoDepth,
                                                         midi::kVibratoDelay};

/// Converts a data byte to a velocity or volume.
float fraction(std::uint8_t value)
{
    return static_cast<float>(value / 127.0);
}

void readNote(std::uint8_t status, std::uint8_t key, std::uint8_t value, LiveInput& input)
{
    // See docs/decisions.md, 46.
    if (status == midi::kNoteOn && value != 0)
        input.keyOn(key, fraction(value));
    else
        input.keyOff(key);
}

void readController(std::uint8_t number, std::uint8_t value, LiveInput& input)
{
    if (const auto slider = sliderOf(number))
        input.setVolume(fraction(value), *slider);
}

/// Returns the bytes after the first `count`.
MidiPacket skip(MidiPacket bytes, std::size_t count)
{
    return bytes.subspan(std::min(count, bytes.size()));
}

/// Reads one packet. Returns whether it contained a note message.
bool readPacket(MidiPacket bytes, LiveInput& input)
{
    bool notesChanged = false;
    while (!bytes.empty()) {
        const std::uint8_t first = bytes[0];
        const std::uint8_t status = first & midi::kKindMask;
        const bool isComplete = bytes.size() >= 3;
        if (status == midi::kNoteOn || status == midi::kNoteOff) {
            if (isComplete) {
                readNote(status, bytes[1], bytes[2], input);
                notesChanged = true;
            }
            bytes = skip(bytes, 3);
        } else if (status == midi::kChannelPressure) {
            bytes = skip(bytes, 2);
        } else {
            // Every other message is read as a controller, even pitch bend and program change: see
            // docs/decisions.md, 44.
            if (isComplete)
                readController(bytes[1], bytes[2], input);
            bytes = skip(bytes, 3);
        }
        // A message without a status byte was read as a controller above. It also releases the key
        // of its first byte and takes a fourth byte: see docs/decisions.md, 45.
        if (first < midi::kStatusBit) {
            input.keyOff(first);
            bytes = skip(bytes, 1);
        }
    }
    return notesChanged;
}

} // namespace

std::optional<std::size_t> sliderOf(std::uint8_t controller)
{
    const auto* slider =
        std::find(kSliderControllers.begin(), kSliderControllers.end(), controller);
    if (slider == kSliderControllers.end())
        return std::nullopt;
    return static_cast<std::size_t>(slider - kSliderControllers.begin());
}

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
