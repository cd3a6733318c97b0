// The voices of a document, and their undo history.

#include "sequencer/SequenceDocument.h"
#include "sequencer/SourceFile.h"
#include "sequencer/SwapCommand.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace velmora {

void SequenceDocument::setVoices(const Voices& voices, const QString& text)
{
    registerTake();
    undoStack_.push(new SwapCommand(text, [this, other = voices]() mutable {
        // What is muted, solo or locked stays as it is.
        Voices next = voices_;
        for (std::size_t channel = 0; channel < next.size(); ++channel) {
            std::swap(next[channel].name, other[channel].name);
            std::swap(next[channel].sound, other[channel].sound);
        }
        mixVoices(next);
    }));
}

void SequenceDocument::mixVoices(const Voices& voices)
{
    takeVoices(voices);
    useVoices();
}

void SequenceDocument::takeVoices(const Voices& voices)
{
    const auto locked = [](const Voices& all) {
        std::bitset<Sequence::kVoices> channels;
        for (std::size_t channel = 0; channel < all.size(); ++channel)
            channels[channel] = all[channel].isLocked;
        return channels;
    };
    if (locked(voices) != locked(voices_))
        edit()->lock(locked(voices));
    voices_ = voices;
    transport_.setPrograms(programs());
    emit voicesChanged();
}

ProgramChanges SequenceDocument::programs() const
{
    if (!source_ || !voices_.arePrograms)
        return {};
    ProgramChanges changes;
    std::bitset<Sequence::kVoices> channels;
    for (const ProgramChange& change : source_->programChanges())
        channels.set(change.channel);
    for (std::size_t channel = 0; channel < voices_.size(); ++channel)
        if (channels[channel])
            changes.push_back({-std::numeric_limits<double>::infinity(),
                               static_cast<std::uint8_t>(channel), voices_[channel].sound.preset});
    changes.insert(changes.end(), source_->programChanges().begin(),
                   source_->programChanges().end());
    return changes;
}

void SequenceDocument::useVoices()
{
    const ProgramChanges& changes = transport_.playback().programs();
    std::vector<PartSound::Preset> presets;
    for (const ProgramChange& change : changes)
        if (change.preset && std::ranges::find(presets, *change.preset) == presets.end())
            presets.push_back(*change.preset);
    VoiceSounds sounds = voices_.sounds();
    for (const ProgramChange& change : programsAt(changes, transport_.position()))
        sounds.at(change.channel).part.preset = change.preset;
    transport_.host().expectPrograms(presets);
    transport_.host().setVoices(sounds);
    emit voicesUsed();
}

void SequenceDocument::setLive(bool isLive)
{
    isLive_ = isLive;
    if (isLive)
        useLiveSound();
    else
        transport_.host().setLiveSound({});
}

void SequenceDocument::useLiveSound()
{
    if (isLive_)
        transport_.host().setLiveSound(voices_.sounds().at(recorder_.channel()).part);
}

} // namespace velmora
