#include "sequencer/RunningTake.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// How early, in seconds, a key may be struck to count as the first of a recording.
constexpr double kEarly = 0.15;

/// The shortest note, in steps, that can be seen and heard.
constexpr double kShortest = 1.0 / 64.0;

} // namespace

RunningTake::RunningTake(Transport& transport, Sequence& sequence, const TakeOptions& options)
    : transport_(transport), sequence_(sequence), options_(options),
      interval_(transport.interval()), loops_(transport.loops() && !interval_.isEmpty()),
      start_(options.punches ? interval_.start : transport.position()),
      place_(transport.host().liveKeys().events().end())
{
    if (options_.punches)
        removeReplaced();
}

// See docs/decisions.md, 190.
void RunningTake::removeReplaced()
{
    std::vector<std::uint64_t> removed;
    for (const Note& note : sequence_.notes()) {
        if (note.channel != options_.channel || note.start + note.length <= interval_.start ||
            note.start >= interval_.end)
            continue;
        before_.emplace(note.id, note);
        replaced_.push_back(note);
        if (note.start >= interval_.start) {
            removed.push_back(note.id);
        } else {
            Note& cut = *sequence_.find(note.id);
            cut.length = cut.oldLength = interval_.start - cut.start;
        }
    }
    std::vector<NoteState> states;
    states.reserve(removed.size());
    for (const std::uint64_t id : removed)
        states.push_back({id, std::nullopt});
    sequence_.swap(states);
    transport_.playback().sequenceChanged();
}

bool RunningTake::take()
{
    const KeyEvents& events = transport_.host().liveKeys().events();
    while (const auto event = events.read(place_))
        events_.push_back(*event);
    std::ranges::stable_sort(events_, {}, &KeyEvent::time);
    auto event = events_.begin();
    for (; event != events_.end() && event->time <= transport_.lastTick(); ++event)
        takeEvent(*event);
    events_.erase(events_.begin(), event);
    while (pass_ < transport_.turns())
        finishPass();
    const double position = transport_.position();
    for (std::size_t key = 0; key < kKeys; ++key)
        lengthen(key, position);
    transport_.setExtent(std::max(transport_.extent(), position + kRoomBehindLastNote));
    return loops_ || !options_.punches || position < interval_.end;
}

void RunningTake::takeEvent(const KeyEvent& event)
{
    const Pace pace = transport_.pace();
    double step = transport_.position();
    double seconds = transport_.lastTick() - event.time; // before that step
    int pass = transport_.turns();
    for (; loops_ && pass > pass_; --pass) {
        const double sinceTurn = pace.secondsBetween(interval_.start, step);
        if (seconds <= sinceTurn)
            break;
        seconds -= sinceTurn;
        step = interval_.end;
    }
    step = pace.stepAfter(step, -seconds);
    while (pass_ < pass)
        finishPass();
    if (event.isPress) {
        press(event, step);
    } else {
        lengthen(event.key, step);
        openNotes_[event.key] = 0;
    }
}

void RunningTake::press(const KeyEvent& event, double step)
{
    transport_.host().liveKeys().take(event.key);
    lengthen(event.key, step); // pressed again from elsewhere
    openNotes_[event.key] = 0;
    const double early = kEarly * transport_.pace().stepsPerSecondAt(start_);
    const bool isPast = (options_.punches || loops_) && step >= interval_.end;
    if (step < start_ - early || isPast)
        return;
    const double exact = std::max(step, start_);
    const double start = options_.snapToGrid ? std::floor(exact) : exact;
    const Note note{.start = start,
                    .length = kShortest,
                    .oldLength = kShortest,
                    .velocity = event.velocity,
                    .channel = options_.channel,
                    .key = event.key,
                    .oldStart = start,
                    .oldKey = event.key};
    const std::uint64_t id = sequence_.addNote(note).id;
    openNotes_[event.key] = id;
    recorded_.push_back(id);
    before_.emplace(id, std::nullopt);
}

void RunningTake::lengthen(std::size_t key, double step)
{
    Note* const note = openNotes_[key] == 0 ? nullptr : sequence_.find(openNotes_[key]);
    if (note == nullptr) // or it was deleted
        return;
    const bool ends = options_.punches || loops_;
    const double exact = (ends ? std::min(step, interval_.end) : step) - note->start;
    const double length = std::max(options_.snapToGrid ? std::ceil(exact) : exact, kShortest);
    before_.emplace(note->id, *note); // an edit may have ended the changes before
    note->length = note->oldLength = length;
}

void RunningTake::endNotes(double step)
{
    for (std::size_t key = 0; key < kKeys; ++key) {
        lengthen(key, step);
        openNotes_[key] = 0;
    }
}

void RunningTake::finishPass()
{
    ++pass_;
    endNotes(interval_.end);
    std::vector<Note> notes;
    for (const std::uint64_t id : std::exchange(recorded_, {}))
        if (const Note* note = sequence_.find(id))
            notes.push_back(*note);
    if (notes.empty())
        return;
    std::vector<NoteState> states = absent(notes);
    sequence_.swap(states);
    transport_.playback().sequenceChanged();
    passes_.push_back(std::move(notes));
}

void RunningTake::end()
{
    const double position = transport_.position();
    endNotes(position);
    std::vector<NoteState> back;
    if (!loops_)
        for (const Note& note : replaced_)
            if (note.start >= position || position <= interval_.start)
                back.push_back({note.id, note});
    for (const NoteState& state : back)
        if (before_.erase(state.id) == 0) { // an edit has ended the changes since
            const Note* const now = sequence_.find(state.id);
            before_.emplace(state.id, now == nullptr ? std::nullopt : std::optional(*now));
        }
    if (!recorded_.empty()) {
        std::vector<Note>& notes = passes_.emplace_back();
        for (const std::uint64_t id : recorded_)
            if (const Note* note = sequence_.find(id))
                notes.push_back(*note);
    } else if (!passes_.empty()) { // nothing was played in the last pass
        for (const Note& note : passes_.back())
            back.push_back({note.id, note});
    }
    sequence_.swap(back);
}

std::vector<NoteState> RunningTake::changes()
{
    std::vector<NoteState> states;
    for (auto& [id, note] : std::exchange(before_, {}))
        if (note || sequence_.find(id) != nullptr)
            states.push_back({id, note});
    return states;
}

} // namespace velmora
