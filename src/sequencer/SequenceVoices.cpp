// The voices of a document, and their undo history.

#include "sequencer/SequenceDocument.h"
#include "sequencer/SwapCommand.h"

#include <bitset>
#include <utility>

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
    emit voicesChanged();
}

void SequenceDocument::useVoices()
{
    transport_.host().setVoices(voices_.sounds());
}

} // namespace velmora
