// What the synthesizer does with keys that have pitches of their own.

#include "audio/Synthesizer.h"

#include <cmath>

namespace velmora {

void Synthesizer::applyToKeys(const Event& event)
{
    const PartKey key{event.part, event.data1};
    switch (event.status) {
    case kKeyOn:
        stopKey(key);
        if (event.data2 > 0)
            startKey(event);
        break;
    case kKeyOff:
        stopKey(key);
        break;
    default:
        retuneKey(key, event.cents, event.glide);
        break;
    }
}

void Synthesizer::startKey(const Event& event)
{
    const PartKey sounding{event.part, event.sounding};
    const auto idle = idleLaneFor(kKeyLane);
    const std::size_t lane = idle ? *idle : nearestLane(sounding, event.cents + event.correction);
    if (lane != kKeyLane)
        lanes_[lane]->followPart(event.part, *lanes_[kKeyLane]);
    if (idle)
        lanes_[lane]->setCents(laneCents_[lane] = event.cents, {});
    // Beside other notes, it can only be raised by whole cents.
    const double above = event.cents - laneCents_[lane];
    noteStarted({event.part, event.data1},
                {lane, 0, event.sounding, event.cents, std::round(above)}, idle.has_value());
    lanes_[lane]->noteOn(sounding, event.data2, event.correction + above);
}

bool Synthesizer::isOn(const KeyNote& note, std::size_t lane) const
{
    return note.lane == lane && note.turn == turns_[lane] && note.turn > 0;
}

void Synthesizer::stopKey(PartKey key)
{
    const KeyNote& note = noteOf(key);
    if (isOn(note, note.lane))
        lanes_[note.lane]->noteOff({key.part, note.sounding});
}

void Synthesizer::retuneKey(PartKey key, double cents, const Glide& glide)
{
    if (!glide.movesSounding)
        return; // the next note brings its pitch with it
    KeyNote& note = noteOf(key);
    note.cents = cents;
    // Notes that die away have lanes as well.
    for (std::size_t lane = 0; lane < lanes_.size(); ++lane) {
        if (firstKeys_[lane] != key || lane == kPercussionLane || lanes_[lane]->isIdle())
            continue;
        laneCents_[lane] = cents;
        lanes_[lane]->setCents(cents, glide);
        for (std::size_t part = 0; part < kParts; ++part) {
            for (std::size_t i = 0; i < kKeys && played_[part]; ++i)
                if (isOn(notes_[part][i], lane))
                    raise(notes_[part][i], part);
        }
    }
    if (isOn(note, note.lane))
        raise(note, key.part);
}

/// Moves a note that shares a lane with others, to the nearest cent.
void Synthesizer::raise(KeyNote& note, std::size_t part)
{
    const double wanted = std::round(note.cents - laneCents_[note.lane]);
    if (wanted != note.raised)
        lanes_[note.lane]->raise({part, note.sounding}, wanted - note.raised);
    note.raised = wanted;
}

/// Returns the lane on which a note that is raised by whole cents comes nearest to its pitch. See
/// docs/decisions.md, 187.
std::size_t Synthesizer::nearestLane(PartKey sounding, double cents) const
{
    std::size_t best = kKeyLane;
    double least = 2.0; // more than any lane is off
    for (std::size_t i = kKeyLane; i < lanes_.size(); ++i) {
        if (ownLanes_[i] != kKeyLane)
            continue;
        const double above = cents - laneCents_[i] - lanes_[i]->correction();
        // Another note of the same key could not be released by itself.
        const double off =
            std::abs(above - std::round(above)) + (lanes_[i]->isHeld(sounding) ? 1.0 : 0.0);
        if (off < least) {
            least = off;
            best = i;
        }
    }
    return best;
}

} // namespace velmora
