#include "sequencer/editVoices.h"

#include "sequencer/FileEdits.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/VoiceEvents.h"
#include "sequencer/Voices.h"

#include <string>

namespace velmora {

namespace {

/// Leaves out an event of the file, which may be null.
void dropEvent(const FileEvent* event, FileEdits& edits)
{
    if (event != nullptr)
        edits.drop([data = event->data.data()](const FileEvent& other) {
            return other.data.data() == data;
        });
}

std::string dataBytes(std::initializer_list<int> values)
{
    return {values.begin(), values.end()};
}

/// Writes what has changed of one voice.
class VoiceEdit {
public:
    VoiceEdit(const MidiFileEvents& file, const VoiceEvents& events, std::size_t channel,
              FileEdits& edits)
        : file_(file), events_(events), channel_(channel), edits_(edits)
    {
    }

    void setPreset(const std::optional<PartSound::Preset>& preset)
    {
        const double step = stepOf(events_.program);
        dropEvent(events_.program, edits_);
        dropEvent(events_.bank, edits_);
        if (!preset)
            return;
        if (!preset->isPercussion && (preset->bank != 0 || events_.bank != nullptr))
            add(step, midi::kControlChange, dataBytes({midi::kBankSelect, preset->bank}));
        add(step, midi::kProgramChange, dataBytes({preset->number}));
    }

    void setVolume(int volume)
    {
        dropEvent(events_.volume, edits_);
        add(stepOf(events_.volume), midi::kControlChange,
            dataBytes({midi::kChannelVolume, volume}));
    }

    void setName(const std::string& name)
    {
        dropEvent(events_.name, edits_);
        if (name.empty())
            return;
        if (events_.hasOwnTrack) {
            edits_.addMeta(events_.track, 0.0, midi::kTrackName, name);
            return;
        }
        edits_.addMeta(events_.track, 0.0, midi::kChannelPrefix,
                       dataBytes({static_cast<int>(channel_)}));
        edits_.addMeta(events_.track, 0.0, midi::kInstrumentName, name);
    }

private:
    /// Where an event stands, or else the first note.
    double stepOf(const FileEvent* event) const
    {
        std::uint64_t tick = event != nullptr ? event->tick : events_.firstNote;
        if (tick == VoiceEvents::kNever)
            tick = 0;
        return static_cast<double>(tick) / file_.header.ticksPerBeat * kStepsPerBeat;
    }

    void add(double step, int kind, const std::string& data)
    {
        edits_.add({events_.track, step,
                    static_cast<std::uint8_t>(kind | static_cast<int>(channel_)), data});
    }

    const MidiFileEvents& file_;
    const VoiceEvents& events_;
    std::size_t channel_;
    FileEdits& edits_;
};

} // namespace

void editVoices(const MidiFileEvents& file, const Voices& voices, FileEdits& edits)
{
    const Voices before = voicesOf(file);
    const auto events = voiceEventsOf(file);
    for (std::size_t channel = 0; channel < voices.size(); ++channel) {
        const Voice& voice = voices[channel];
        VoiceEdit edit(file, events[channel], channel, edits);
        if (voice.name != before[channel].name)
            edit.setName(voice.name);
        if (voice.sound.preset != before[channel].sound.preset)
            edit.setPreset(voice.sound.preset);
        if (voice.sound.volume != before[channel].sound.volume)
            edit.setVolume(voice.sound.volume);
    }
}

} // namespace velmora
