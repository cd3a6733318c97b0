#include "sequencer/SequencePlayback.h"

#include "sound/Instrument.h"
#include "tuning/Temperament.h"

#include <algorithm>

namespace {

/// The state of a key that the sequence plays.
constexpr int kPlayed = 2;

} // namespace

std::optional<std::uint32_t> SequencePlayback::playBetween(double from, double to)
{
    std::optional<std::uint32_t> lastKey;
    bool silenced = false;
    for (const std::uint32_t position : index().concernedBy(from, to)) {
        Note& note = sequence_.at(position);
        if (from <= note.start && note.start < to) {
            start(position);
            lastKey = note.key;
        }
        const double end = note.start + note.length;
        if (from < end && end <= to) {
            silence(note);
            silenced = true;
        }
    }
    if (silenced)
        forgetUnmarked();
    return lastKey;
}

void SequencePlayback::start(std::uint32_t position)
{
    mark(position);
    Note& note = sequence_.at(position);
    states[note.key] = kPlayed;
    note.playing = note.active = true;
    const std::lock_guard lock(host_.soundLock());
    if (Instrument* instrument = host_.getInstrument()) {
        host_.getTemperament()->setup(*instrument, static_cast<unsigned char>(note.key),
                                      note.velocity);
        instrument->play(static_cast<int>(note.key), note.velocity);
    }
}

void SequencePlayback::silence(Note& note)
{
    states[note.key] = 0;
    note.playing = note.active = false;
    stopOnInstrument(note.key);
}

void SequencePlayback::silenceAll()
{
    for (const std::uint32_t key : index().keys()) {
        states[key] = 0;
        stopOnInstrument(key);
    }
    for (const std::uint32_t position : marked_)
        sequence_.at(position).playing = sequence_.at(position).active = false;
    marked_.clear();
}

void SequencePlayback::stop()
{
    for (std::size_t i = 0; i < sequence_.notes().size(); ++i) {
        Note& note = sequence_.at(i);
        if (note.playing)
            stopOnInstrument(note.key);
        note.playing = false;
    }
}

void SequencePlayback::markAt(double step, double tolerance, int state)
{
    const auto& starts = index().starts();
    for (const std::uint32_t position : marked_)
        sequence_.at(position).active = false;
    forgetUnmarked();
    auto moment = std::partition_point(starts.begin(), starts.end(), [=](const auto& start) {
        return start.step - step < -tolerance;
    });
    for (; moment != starts.end() && !(moment->step - step > tolerance); ++moment) {
        mark(moment->position);
        Note& note = sequence_.at(moment->position);
        note.active = true;
        states[note.key] |= state;
    }
}

void SequencePlayback::stopOnInstrument(std::uint32_t key)
{
    const std::lock_guard lock(host_.soundLock());
    if (Instrument* instrument = host_.getInstrument())
        instrument->stop(static_cast<int>(key));
}

SequenceIndex& SequencePlayback::index()
{
    if (!index_) {
        index_.emplace(sequence_.notes());
        marked_.clear();
        for (const auto& [step, position] : index_->starts())
            if (isMarked(position))
                marked_.push_back(position);
    }
    return *index_;
}

bool SequencePlayback::isMarked(std::uint32_t position) const
{
    const Note& note = sequence_.notes()[position];
    return note.playing || note.active;
}

void SequencePlayback::mark(std::uint32_t position)
{
    if (!isMarked(position))
        marked_.push_back(position);
}

void SequencePlayback::forgetUnmarked()
{
    std::erase_if(marked_, [this](std::uint32_t position) { return !isMarked(position); });
}
