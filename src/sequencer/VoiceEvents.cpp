#include "sequencer/VoiceEvents.h"

#include <algorithm>
#include <optional>

namespace velmora {

namespace {

using ByChannel = std::array<VoiceEvents, midi::kChannels>;

template <class Use> void forChannelEvents(const MidiFileEvents& file, const Use& use)
{
    for (std::size_t track = 0; track < file.tracks.size(); ++track)
        for (const FileEvent& event : file.tracks[track].events)
            if (event.status < midi::kFirstSystemStatus)
                use(event, static_cast<std::size_t>(event.status & midi::kChannelMask),
                    event.status & midi::kKindMask, track);
}

void findBeginnings(const MidiFileEvents& file, ByChannel& voices)
{
    forChannelEvents(
        file, [&](const FileEvent& event, std::size_t channel, int kind, std::size_t track) {
            VoiceEvents& voice = voices[channel];
            if (kind == midi::kNoteOn && event.data[1] != 0) {
                if (voice.firstNote == VoiceEvents::kNever)
                    voice.track = track;
                voice.firstNote = std::min(voice.firstNote, event.tick);
            } else if (kind == midi::kProgramChange &&
                       (voice.program == nullptr || event.tick < voice.program->tick)) {
                voice.program = &event;
            }
        });
}

void findControllers(const MidiFileEvents& file, ByChannel& voices)
{
    forChannelEvents(file, [&](const FileEvent& event, std::size_t channel, int kind, std::size_t) {
        VoiceEvents& voice = voices[channel];
        if (kind != midi::kControlChange)
            return;
        if (event.data[0] == midi::kBankSelect && voice.program != nullptr &&
            event.tick <= voice.program->tick)
            voice.bank = &event;
        if (event.data[0] == midi::kChannelVolume && event.tick <= voice.firstNote)
            voice.volume = &event;
    });
}

/// Finds the name of a track that has one voice, and the names of instruments on a channel.
void findNames(const MidiFileEvents& file, std::size_t track, ByChannel& voices)
{
    std::optional<std::size_t> channel;
    std::size_t prefix = voices.size(); // none
    const FileEvent* name = nullptr;
    bool isShared = false;
    for (const FileEvent& event : file.tracks[track].events) {
        const std::size_t own = event.status & midi::kChannelMask;
        if ((event.status & midi::kKindMask) == midi::kNoteOn) {
            isShared = isShared || (channel && channel != own);
            channel = own;
        }
        if (event.status != midi::kMetaEvent)
            prefix = voices.size();
        else if (const auto data = metaData(event, midi::kChannelPrefix); !data.empty())
            prefix = static_cast<std::size_t>(data.front() & midi::kChannelMask);
        else if (!metaData(event, midi::kInstrumentName).empty() && prefix < voices.size())
            voices[prefix].name = &event;
        else if (!metaData(event, midi::kTrackName).empty() && name == nullptr)
            name = &event;
    }
    if (!channel || isShared)
        return;
    VoiceEvents& voice = voices[*channel];
    voice.hasOwnTrack = voice.hasOwnTrack || voice.track == track;
    if (voice.name == nullptr)
        voice.name = name;
}

} // namespace

std::array<VoiceEvents, midi::kChannels> voiceEventsOf(const MidiFileEvents& file)
{
    ByChannel voices;
    for (std::size_t track = 0; track < file.tracks.size(); ++track)
        if (const auto channel = file.tracks[track].channel) {
            voices.at(*channel).track = track;
            voices.at(*channel).hasOwnTrack = true;
        }
    findBeginnings(file, voices);
    findControllers(file, voices);
    for (std::size_t track = 0; track < file.tracks.size(); ++track)
        findNames(file, track, voices);
    return voices;
}

} // namespace velmora
