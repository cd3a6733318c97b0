// The plain walk through all notes, as the measure of the one that skips what a tick does not
// concern.

#include "support/SequenceTest.h"

#include <algorithm>
#include <random>
#include <tuple>

namespace {

class SequencePlaybackTest : public SequenceTest {
protected:
    using State = std::tuple<std::vector<std::tuple<std::uint64_t, bool, bool>>,
                             std::array<int, 128>, Calls, double, int>;

    static std::vector<std::tuple<std::uint64_t, bool, bool>> flags(const std::vector<Note>& notes)
    {
        std::vector<std::tuple<std::uint64_t, bool, bool>> result;
        for (const Note& note : notes)
            result.emplace_back(note.id, note.playing, note.active);
        return result;
    }

    std::array<int, 128> keys() const
    {
        std::array<int, 128> result{};
        for (unsigned key = 0; key < 128; ++key)
            result[key] = document_.stateOfNote(key);
        return result;
    }

    State state() const
    {
        return {flags(document_.getSequence().notes()), keys(), calls_, document_.getOffset(),
                document_.getNote()};
    }

    /// What a tick of so many steps comes to, by walking through all notes.
    State walkThrough(double steps) const
    {
        auto notes = document_.getSequence().notes();
        auto states = keys();
        Calls calls;
        int cursor = document_.getNote();
        const double t0 = document_.getOffset();
        double t = t0 + 120.0 * (now_ + steps / 15.0 - now_) * 0.125;
        const bool interval = document_.intervalSelected();
        const bool atEnd = (interval && document_.getSelectionEnd() < t) || document_.extent() < t;
        for (Note& note : notes) {
            const bool starts = t0 <= note.start && note.start < t && !atEnd;
            if (starts) {
                states[note.key] = 2;
                note.playing = note.active = true;
                calls.push_back(fmt::format("setup {}", note.key));
                calls.push_back(fmt::format("play {} {:.2f}", note.key, note.velocity));
                cursor = static_cast<int>(note.key);
            }
            if ((t0 < note.start + note.length && note.start + note.length <= t) || atEnd) {
                states[note.key] = 0;
                note.playing = note.active = false;
                const std::string stop = fmt::format("stop {}", note.key);
                // At the end, once for each key is enough.
                if (!atEnd || std::ranges::find(calls, stop) == calls.end())
                    calls.push_back(stop);
            }
        }
        if (atEnd)
            t = interval ? document_.getSelectionStart() : 0.0;
        return {flags(notes), states, calls, t, cursor};
    }

    void expectLook()
    {
        auto notes = document_.getSequence().notes();
        std::array<int, 128> states{};
        std::ranges::copy(noteStates, states.begin());
        for (Note& note : notes) {
            note.active = std::abs(note.start - document_.getOffset()) <= 0.1;
            states[note.key] |= note.active ? 2 : 0;
        }
        document_.getCurrentNotes(false);
        EXPECT_EQ(flags(document_.getSequence().notes()), flags(notes));
        EXPECT_EQ(keys(), states);
    }

    unsigned any(unsigned count) { return static_cast<unsigned>(random_() % count); }

    void edit()
    {
        const auto& notes = document_.getSequence().notes();
        const std::uint64_t id = notes.empty() ? 0 : notes[any(unsigned(notes.size()))].id;
        Sequence& sequence = document_.edit({&id, 1});
        switch (any(4)) {
        case 0:
            sequence.erase(id);
            break;
        case 1:
            if (Note* note = sequence.find(id))
                note->start += 0.25;
            break;
        case 2:
            sequence.sort();
            break;
        default:
            add(any(6), any(40) * 0.5, any(6) * 0.5);
        }
    }

    std::mt19937 random_{5};
};

} // namespace

TEST_F(SequencePlaybackTest, DoesWhatAWalkThroughAllNotesDoes)
{
    document_.setLoop(true);
    for (int i = 0; i < 4000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        if (i % 400 == 0) { // another sequence, unsorted, with many that start together
            document_.edit().select();
            document_.edit().erase();
            for (unsigned notes = any(40); notes > 0; --notes)
                add(any(6), any(40) * 0.5, any(6) * 0.5);
        }
        if (document_.mode() == kStopped)
            document_.play();
        if (any(20) == 0)
            document_.setOffset(any(60) * 0.5);
        if (any(20) == 0)
            document_.selectInterval(any(8), any(3) * 10.0);
        if (any(20) == 0)
            document_.stop();
        if (any(8) == 0)
            edit();
        if (any(10) == 0)
            expectLook();
        calls_.clear();
        const double steps = std::array{0.015, 0.25, 0.5, 3.0}[any(4)];
        const State walked = walkThrough(steps);
        tick(steps);
        EXPECT_EQ(state(), walked);
    }
}
