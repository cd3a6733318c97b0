#include "sequencer/Voices.h"

#include "base/Text.h"
#include "midi/MidiFileEvents.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/VoiceEvents.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace velmora {

namespace {

std::string nameIn(const FileEvent& event)
{
    std::string name;
    for (const std::uint8_t type : {midi::kTrackName, midi::kInstrumentName})
        name += toUtf8(metaData(event, type));
    while (!name.empty() && (name.back() == ' ' || name.back() == '\0'))
        name.pop_back();
    return name;
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
    voices[kDrumChannel].sound.preset = presetOn(kDrumChannel, 0, 0);
    return voices;
}

Voices voicesOf(const MidiFileEvents& file)
{
    Voices voices = newVoices();
    const auto events = voiceEventsOf(file);
    for (std::size_t channel = 0; channel < voices.size(); ++channel) {
        const VoiceEvents& found = events[channel];
        Voice& voice = voices[channel];
        if (found.program != nullptr)
            voice.sound.preset = presetOn(channel, found.bank != nullptr ? found.bank->data[1] : 0,
                                          found.program->data[0]);
        if (found.volume != nullptr)
            voice.sound.volume = static_cast<std::uint8_t>(found.volume->data[1]);
        if (found.name != nullptr)
            voice.name = nameIn(*found.name);
    }
    return voices;
}

} // namespace velmora
