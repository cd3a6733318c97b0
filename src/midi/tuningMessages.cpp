#include "midi/tuningMessages.h"

#include "midi/messages.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numeric>

namespace velmora {

namespace {

// Every message is F0, one of these, the device, `kTuning`, its kind, …, F7.
constexpr std::uint8_t kNonRealTime = 0x7E, kRealTime = 0x7F;
constexpr std::uint8_t kTuning = 0x08;
constexpr std::uint8_t kAllDevices = 0x7F;

enum MessageKind : std::uint8_t {
    kBulkDump = 0x01,
    kKeyChanges = 0x02,
    kBulkDumpOfBank = 0x04,
    kOctaveDumpOneByte = 0x05,
    kOctaveDumpTwoBytes = 0x06,
    kKeyChangesOfBank = 0x07,
    kOctaveOneByte = 0x08,
    kOctaveTwoBytes = 0x09
};

constexpr std::size_t kNameLength = 16;
constexpr std::size_t kNotes = 12;
constexpr std::size_t kChannelBytes = 3; ///< A bit for each channel.

/// The three bytes of a place are its key and a fraction of 14 bits.
constexpr double kPlaceUnits = 16384.0;
constexpr std::uint32_t kUnchanged = 0x1FFFFF;

/// An octave of two bytes a note counts in 8192 units a semitone, and 8192 is equal temperament.
constexpr double kOctaveUnits = 8192.0;
constexpr int kOctaveCentre = 8192;

using Bytes = std::vector<std::uint8_t>;

std::uint8_t checksumOf(MidiPacket bytes)
{
    return std::accumulate(
        bytes.begin(), bytes.end(), std::uint8_t{0},
        [](std::uint8_t sum, std::uint8_t byte) -> std::uint8_t { return (sum ^ byte) & 0x7F; });
}

std::uint32_t unitsOf(MidiPacket bytes)
{
    return static_cast<std::uint32_t>(bytes[0] << 14 | bytes[1] << 7 | bytes[2]);
}

void readPlace(MidiPacket bytes, double& place)
{
    if (const std::uint32_t units = unitsOf(bytes); units != kUnchanged)
        place = units / kPlaceUnits;
}

void addPlace(Bytes& message, double place)
{
    const double units = std::clamp(std::round(place * kPlaceUnits), 0.0, kUnchanged - 1.0);
    const auto value = static_cast<std::uint32_t>(units);
    for (const unsigned shift : {14U, 7U, 0U})
        message.push_back(value >> shift & 0x7F);
}

/// `data` is a name and 128 places.
bool readBulkDump(MidiPacket data, ReceivedTuning& tuning)
{
    if (data.size() != kNameLength + 3 * tuning.places.size())
        return false;
    for (std::size_t key = 0; key < tuning.places.size(); ++key)
        readPlace(data.subspan(kNameLength + 3 * key, 3), tuning.places[key]);
    return true;
}

/// `data` is the number of changes, and for each of them a key and a place.
bool readKeyChanges(MidiPacket data, ReceivedTuning& tuning)
{
    if (data.empty() || data.size() != 1 + 4 * std::size_t{data[0]})
        return false;
    for (std::size_t at = 1; at < data.size(); at += 4)
        readPlace(data.subspan(at + 1, 3), tuning.places[data[at]]);
    return data.size() > 1;
}

/// `data` is one or two bytes for each pitch class.
bool readOctave(MidiPacket data, std::size_t width, ReceivedTuning& tuning)
{
    if (data.size() != width * kNotes)
        return false;
    for (std::size_t key = 0; key < tuning.places.size(); ++key) {
        const MidiPacket note = data.subspan(width * (key % kNotes), width);
        const double semitones = width == 1
                                     ? (note[0] - 64) / 100.0
                                     : (128 * note[0] + note[1] - kOctaveCentre) / kOctaveUnits;
        tuning.places[key] = static_cast<double>(key) + semitones;
    }
    return true;
}

std::string nameIn(MidiPacket bytes)
{
    std::string name(bytes.begin(), bytes.end());
    std::ranges::replace_if(
        name, [](char letter) { return letter < ' ' || letter > '~'; }, ' ');
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : name.substr(first, name.find_last_not_of(' ') + 1 - first);
}

/// Reads a dump, which has `numbers` bytes of bank and program, a name and a checksum.
bool readDump(MidiPacket message, std::size_t numbers, ReceivedTuning& tuning)
{
    if (message.size() < 5 + numbers + kNameLength + 2)
        return false;
    if (checksumOf(message.subspan(1, message.size() - 3)) != message[message.size() - 2])
        return false;
    const MidiPacket data = message.subspan(5 + numbers, message.size() - 5 - numbers - 2);
    const MidiPacket notes = data.subspan(kNameLength);
    const bool isRead = message[4] == kOctaveDumpOneByte    ? readOctave(notes, 1, tuning)
                        : message[4] == kOctaveDumpTwoBytes ? readOctave(notes, 2, tuning)
                                                            : readBulkDump(data, tuning);
    if (isRead)
        tuning.name = nameIn(data.first(kNameLength));
    return isRead;
}

bool readBody(MidiPacket message, ReceivedTuning& tuning)
{
    const MidiPacket data = message.subspan(5, message.size() - 6);
    const auto behind = [&](std::size_t bytes) {
        return data.subspan(std::min(bytes, data.size()));
    };
    switch (message[4]) {
    case kBulkDump:
        return readDump(message, 1, tuning);
    case kBulkDumpOfBank:
    case kOctaveDumpOneByte:
    case kOctaveDumpTwoBytes:
        return readDump(message, 2, tuning);
    case kKeyChanges:
        return readKeyChanges(behind(1), tuning);
    case kKeyChangesOfBank:
        return readKeyChanges(behind(2), tuning);
    case kOctaveOneByte:
        return readOctave(behind(kChannelBytes), 1, tuning);
    case kOctaveTwoBytes:
        return readOctave(behind(kChannelBytes), 2, tuning);
    default:
        return false;
    }
}

} // namespace

ReceivedTuning::ReceivedTuning()
{
    std::iota(places.begin(), places.end(), 0.0);
}

bool isTuningMessage(MidiPacket message)
{
    constexpr std::array kRead{kBulkDump,          kKeyChanges,         kBulkDumpOfBank,
                               kOctaveDumpOneByte, kOctaveDumpTwoBytes, kKeyChangesOfBank,
                               kOctaveOneByte,     kOctaveTwoBytes};
    return message.size() > 6 && message.front() == midi::kSystemExclusive &&
           message.back() == midi::kEscape && message[3] == kTuning &&
           (message[1] == kNonRealTime || message[1] == kRealTime) &&
           std::ranges::find(kRead, message[4]) != kRead.end();
}

bool readTuningMessage(MidiPacket message, ReceivedTuning& tuning)
{
    return isTuningMessage(message) &&
           std::ranges::all_of(message.subspan(1, message.size() - 2),
                               [](std::uint8_t byte) { return byte < midi::kStatusBit; }) &&
           readBody(message, tuning);
}

Bytes writeBulkDump(std::string_view name, const KeyPlaces& places)
{
    Bytes message{midi::kSystemExclusive, kNonRealTime, kAllDevices, kTuning, kBulkDump, 0};
    for (std::size_t i = 0; i < kNameLength; ++i) {
        const char letter = i < name.size() ? name[i] : ' ';
        message.push_back(letter < ' ' || letter > '~' ? '?' : static_cast<std::uint8_t>(letter));
    }
    for (const double place : places)
        addPlace(message, place);
    message.push_back(checksumOf(MidiPacket(message).subspan(1)));
    message.push_back(midi::kEscape);
    return message;
}

Bytes writeOctaveTuning(std::span<const double, kNotes> cents)
{
    Bytes message{midi::kSystemExclusive, kRealTime, kAllDevices, kTuning,
                  kOctaveTwoBytes,        0x03,      0x7F,        0x7F};
    for (const double each : cents) {
        const auto units = static_cast<int>(
            std::clamp(std::round(kOctaveCentre + each / 100.0 * kOctaveUnits), 0.0, 16383.0));
        message.push_back(static_cast<std::uint8_t>(units >> 7));
        message.push_back(static_cast<std::uint8_t>(units & 0x7F));
    }
    message.push_back(midi::kEscape);
    return message;
}

Bytes writeKeyChanges(std::span<const std::uint8_t> keys, const KeyPlaces& places)
{
    assert(keys.size() < places.size());
    Bytes message{midi::kSystemExclusive,
                  kRealTime,
                  kAllDevices,
                  kTuning,
                  kKeyChanges,
                  0,
                  static_cast<std::uint8_t>(keys.size())};
    for (const std::uint8_t key : keys) {
        message.push_back(key);
        addPlace(message, places[key]);
    }
    message.push_back(midi::kEscape);
    return message;
}

} // namespace velmora
