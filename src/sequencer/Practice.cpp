#include "sequencer/Practice.h"

#include "sequencer/LiveKeys.h"

#include <algorithm>

namespace velmora {

namespace {

/// Notes this close to the position, in steps, belong to its chord.
constexpr double kTolerance = 0.1;

// See docs/decisions.md, 94.
bool isUnanswered(int state)
{
    return state == kPressed || state == kWanted || state == (kWanted | kHeld);
}

} // namespace

void Practice::currentNote()
{
    const auto& notes = sequence_.notes();
    const auto found = std::find_if(notes.begin(), notes.end(), [this](const Note& note) {
        return note.start >= transport_.position() - kTolerance;
    });
    transport_.setCursor(static_cast<int>(found - notes.begin()));
}

void Practice::nextNote()
{
    const auto& notes = sequence_.notes();
    if (notes.empty())
        return;
    const auto found = std::find_if(notes.begin(), notes.end(), [this](const Note& note) {
        return note.start - transport_.position() > kTolerance;
    });
    if (found != notes.end()) {
        transport_.setCursor(static_cast<int>(found - notes.begin()));
        transport_.setPosition(found->start);
        return;
    }
    transport_.setCursor(static_cast<int>(notes.size()) - 1);
    if (!transport_.loops())
        return;
    if (const Interval& interval = transport_.interval(); !interval.isEmpty()) {
        transport_.setPosition(interval.start);
        currentNote();
    } else {
        transport_.setCursor(0);
        transport_.setPosition(notes.front().start);
    }
}

void Practice::prevNote()
{
    const auto& notes = sequence_.notes();
    if (notes.empty())
        return;
    int note = static_cast<int>(notes.size()) - 1;
    const auto start = [&] { return notes[static_cast<std::size_t>(note)].start; };
    const auto walkDown = [&] {
        while (note >= 0 && transport_.position() - start() <= kTolerance)
            --note;
    };
    walkDown();
    if (note >= 0) {
        // Go to the first note of that chord.
        transport_.setPosition(start());
        walkDown();
        if (note >= 0) {
            ++note;
            transport_.setPosition(start());
        }
    }
    transport_.setCursor(note);
}

void Practice::showKeys()
{
    transport_.settle();
    SequencePlayback& playback = transport_.playback();
    const LiveKeys& keys = transport_.host().liveKeys();
    for (std::size_t key = 0; key < kKeys; ++key)
        playback.states[key] = keys.state(key);
    // In the plain reading the marks of sounding notes are lost when a key is pressed.
    if (transport_.isRunning() && transport_.reading() == Reading::Musical)
        playback.markSounding(transport_.position(), kWanted);
    else
        playback.markAt(transport_.position(), kTolerance, kWanted);
}

void Practice::advance()
{
    showKeys();
    auto& states = transport_.playback().states;
    if (std::any_of(states.begin(), states.end(), isUnanswered))
        return;

    const bool isAnswered =
        std::ranges::any_of(states, [](int state) { return state == (kWanted | kPressed); });
    LiveKeys& keys = transport_.host().liveKeys();
    for (std::size_t key = 0; key < kKeys; ++key) {
        const int before = keys.take(key);
        states[key] = before == kPressed ? kHeld : before;
    }
    const double answered = transport_.position();
    nextNote();
    if (isAnswered)
        done_ = transport_.position() == answered ? std::optional(answered) : std::nullopt;
    const Interval& interval = transport_.interval();
    if (transport_.loops() && interval.start < interval.end &&
        interval.end <= transport_.position()) {
        transport_.setPosition(interval.start);
        currentNote();
    }
    transport_.revealPosition();
    const auto& notes = sequence_.notes();
    for (auto i = static_cast<std::size_t>(std::max(transport_.cursor(), 0));
         i < notes.size() && notes[i].start - transport_.position() <= kTolerance; ++i)
        states[notes[i].key] |= kWanted;
}

bool Practice::isDone() const
{
    const auto& notes = sequence_.notes();
    return done_ == transport_.position() && !transport_.loops() &&
           std::none_of(notes.begin(), notes.end(),
                        [this](const Note& note) { return note.start - *done_ > kTolerance; });
}

// See docs/decisions.md, 93.
void Practice::midiInput()
{
    if (transport_.mode() == Transport::Mode::Stopped)
        advance();
    else
        showKeys();
    emit transport_.frame();
}

} // namespace velmora
