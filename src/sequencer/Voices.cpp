#include "sequencer/Voices.h"

#include "audio/Program.h"
#include "base/Text.h"
#include "midi/MidiFileEvents.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace velmora {

namespace {

constexpr std::size_t kDrumChannel = 9;

/// Which events of a channel count.
struct Beginnings {
    static constexpr std::uint64_t kNever = std::numeric_limits<std::uint64_t>::max();

    std::uint64_t note = kNever;    ///< The tick of the first note.
    std::uint64_t program = kNever; ///< The tick of the first program.
};

template <class Use> void forChannelEvents(const MidiFileEvents& file, const Use& use)
{
    for (const FileTrack& track : file.tracks)
        for (const FileEvent& event : track.events)
            if (event.status < midi::kFirstSystemStatus)
                use(event, static_cast<std::size_t>(event.status & midi::kChannelMask),
                    event.status & midi::kKindMask);
}

std::array<Beginnings, midi::kChannels> beginningsOf(const MidiFileEvents& file)
{
    std::array<Beginnings, midi::kChannels> beginnings;
    forChannelEvents(file, [&](const FileEvent& event, std::size_t channel, int kind) {
        Beginnings& beginning = beginnings[channel];
        if (kind == midi::kNoteOn && event.data[1] != 0)
            beginning.note = std::min(beginning.note, event.tick);
        if (kind == midi::kProgramChange)
            beginning.program = std::min(beginning.program, event.tick);
    });
    return beginnings;
}

std::string nameIn(const FileEvent& event)
{
    std::string name = toUtf8(metaData(event, midi::kTrackName));
    while (!name.empty() && (name.back() == ' ' || name.back() == '\0'))
        name.pop_back();
    return name;
}

/// Gives a name to the channels that have a track to themselves.
void nameVoices(const MidiFileEvents& file, Voices& voices)
{
    for (const FileTrack& track : file.tracks) {
        std::optional<std::size_t> channel;
        std::string name;
        bool isShared = false;
        for (const FileEvent& event : track.events) {
            const std::size_t own = event.status & midi::kChannelMask;
            if ((event.status & midi::kKindMask) == midi::kNoteOn) {
                isShared = isShared || (channel && channel != own);
                channel = own;
            } else if (name.empty()) {
                name = nameIn(event);
            }
        }
        if (channel && !isShared && voices[*channel].name.empty())
            voices[*channel].name = name;
    }
}

} // namespace

VoiceSounds Voices::sounds() const
{
    const bool hasSolo = std::any_of(begin(), end(), [](const Voice& each) { return each.isSolo; });
    VoiceSounds sounds;
    for (std::size_t channel = 0; channel < size(); ++channel) {
        const Voice& voice = (*this)[channel];
        sounds[channel].part = voice.sound;
        if (!arePrograms)
            sounds[channel].part.preset.reset();
        sounds[channel].isAudible = hasSolo ? voice.isSolo : !voice.isMuted;
    }
    return sounds;
}

Voices newVoices()
{
    Voices voices;
    voices[kDrumChannel].sound.preset = {.bank = kDrumKits, .number = 0, .isPercussion = true};
    return voices;
}

Voices voicesOf(const MidiFileEvents& file)
{
    Voices voices = newVoices();
    const auto beginnings = beginningsOf(file);
    std::array<int, midi::kChannels> banks{};
    forChannelEvents(file, [&](const FileEvent& event, std::size_t channel, int kind) {
        const auto& [note, program] = beginnings[channel];
        Voice& voice = voices[channel];
        const int value = event.data[0];
        if (kind == midi::kProgramChange && event.tick == program)
            voice.sound.preset = {.bank = channel == kDrumChannel ? kDrumKits : banks[channel],
                                  .number = static_cast<std::uint8_t>(value & 0x7F),
                                  .isPercussion = channel == kDrumChannel};
        if (kind != midi::kControlChange)
            return;
        if (value == midi::kBankSelect && event.tick <= program)
            banks[channel] = event.data[1];
        if (value == midi::kChannelVolume && event.tick <= note)
            voice.sound.volume = event.data[1];
    });
    nameVoices(file, voices);
    return voices;
}

} // namespace velmora
