#include "sequencer/Transport.h"

#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <algorithm>
#include <random>
#include <utility>

namespace velmora {

namespace {

/// Everything that a tick can change.
struct State {
    std::vector<Note> notes;
    std::vector<int> keys;
    Calls calls;
    double offset;
    int cursor;

    std::string text() const
    {
        std::string flags;
        for (const Note& note : notes)
            flags += fmt::format("{}:{:d}{:d} ", note.id, note.playing, note.active);
        return fmt::format("{} {}\n{}\n{}\n{}", offset, cursor, fmt::join(keys, " "),
                           fmt::join(calls, ", "), flags);
    }
};

class TransportTest : public SequenceTest {
protected:
    /// The extent is 44.
    void addTwoNotes()
    {
        add(60, 2.0, 4.0);
        add(64, 4.0, 8.0);
        document_.edit()->at(1).velocity = 0.5F;
    }

    State state() const
    {
        std::vector<int> keys;
        for (unsigned key = 0; key < 128; ++key)
            keys.push_back(practice_.stateOfNote(key));
        return {document_.sequence().notes(), keys, calls_, transport_.position(),
                transport_.cursor()};
    }

    /// Returns the state after a tick of a number of steps, found by visiting all notes. The real
    /// tick must have the same result although it visits few of them.
    State walkThrough(double steps) const
    {
        State result = state();
        auto& [notes, keys, calls, t, cursor] = result;
        const double t0 = t;
        t += 120.0 * (now_ + steps / 15.0 - now_) * 0.125;
        const bool interval = !transport_.interval().isEmpty();
        const bool atEnd = (interval && transport_.interval().end < t) || transport_.extent() < t;
        for (Note& note : notes) {
            const bool starts = t0 <= note.start && note.start < t;
            if (starts && !atEnd) {
                keys[note.key] = kWanted;
                note.playing = note.active = true;
                calls.push_back(fmt::format("play {} {:.2f}", note.key, note.velocity));
                cursor = static_cast<int>(note.key);
            }
            const double end = note.start + note.length;
            if (((t0 < end || starts) && end <= t) || atEnd) {
                keys[note.key] = 0;
                note.playing = note.active = false;
                const std::string stop = fmt::format("stop {}", note.key);
                // At the end each key stops only once.
                if (!atEnd || std::ranges::find(calls, stop) == calls.end())
                    calls.push_back(stop);
            }
        }
        if (atEnd)
            t = interval ? transport_.interval().start : 0.0;
        return result;
    }

    void expectLook()
    {
        State looked = state();
        for (std::size_t key = 0; key < kKeys; ++key)
            looked.keys[key] = liveKeys_.state(key);
        for (Note& note : looked.notes) {
            note.active = std::abs(note.start - looked.offset) <= 0.1;
            looked.keys[note.key] |= note.active ? kWanted : 0;
        }
        practice_.showKeys();
        EXPECT_EQ(state().text(), looked.text());
    }

    unsigned any(unsigned count) { return static_cast<unsigned>(random_() % count); }

    void edit()
    {
        const auto& notes = document_.sequence().notes();
        const std::uint64_t id = notes.empty() ? 0 : notes[any(unsigned(notes.size()))].id;
        const auto edit = document_.edit({&id, 1});
        const unsigned what = any(4);
        if (what == 0)
            edit->erase(id);
        else if (what == 1)
            edit->sort();
        else if (what == 2 && !notes.empty())
            edit->find(id)->start += 0.25;
        else
            addAny();
    }

    void addAny() { add(any(6), any(40) * 0.5, any(6) * 0.5); }

    std::mt19937 random_{5};
};

} // namespace

TEST_F(TransportTest, PlaysToTheEndAndReturnsToTheBeginning)
{
    addTwoNotes();
    double shown = -1.0;
    QObject::connect(&transport_, &Transport::frame, [&] { shown = transport_.position(); });
    tick(100.0); // has no effect while stopped
    transport_.play();
    for (const auto& [steps, calls] : {std::pair(1.5, Calls{}),
                                       {1.0, {"play 60 1.00"}},
                                       {2.0, {"play 64 0.50"}},
                                       {2.0, {"stop 60"}},
                                       {6.0, {"stop 64"}},
                                       {31.0, {}},
                                       {1.0, {"stop 60", "stop 64"}}}) {
        calls_.clear();
        EXPECT_EQ(transport_.mode(), Transport::Mode::Playing);
        tick(steps);
        EXPECT_EQ(calls_, calls) << "at step " << transport_.position();
    }
    EXPECT_EQ(transport_.mode(), kStopped);
    EXPECT_EQ(transport_.position(), 0.0);
    EXPECT_EQ(shown, 0.0) << "the last tick shows it";

    transport_.play();
    tick(2.5);
    calls_.clear();
    transport_.play();
    transport_.stop();
    EXPECT_EQ(calls_, Calls{"stop 60"}) << "once";
    EXPECT_EQ(practice_.stateOfNote(60), kWanted) << "the keyboard keeps its colours";
    EXPECT_NEAR(transport_.position(), 2.5, 1e-6);
}

TEST_F(TransportTest, ShowsTheKeysAndNotesAtThePosition)
{
    SequenceDocument musical(*this, Reading::Musical, [this] { return now_; });
    Transport& transport = musical.transport();
    musical.edit()->addNote({.start = 0.0, .length = 8.0, .velocity = 1.0F, .key = 60});
    musical.edit()->addNote({.start = 20.0, .length = 1.0, .velocity = 1.0F, .key = 64});
    musical.updateExtent();
    SequenceEditor editor(musical);
    transport.play();
    const auto play = [&](double seconds) {
        now_ += seconds;
        transport.tick();
    };
    play(0.1);
    editor.selectAll();
    editor.deleteSelection();
    musical.undoStack().undo();
    EXPECT_TRUE(musical.sequence().notes().at(0).active) << "it is under the position again";
    press(70);
    musical.practice().midiInput();
    EXPECT_EQ(musical.practice().stateOfNote(60), kWanted) << "still sounding";
    transport.play();
    EXPECT_EQ(musical.practice().stateOfNote(60), 0) << "nothing begins here";
    transport.play();
    play(1.2);
    play(9.0);
    EXPECT_EQ(transport.mode(), kStopped);
    EXPECT_EQ(musical.practice().stateOfNote(60), kWanted) << "at the beginning again";
}

TEST_F(TransportTest, ShowsAFrameOnEverySixteenthTickOrOnEachLateOne)
{
    addTwoNotes();
    transport_.play();
    int frames = 0;
    QObject::connect(&transport_, &Transport::frame, [&] { ++frames; });
    const auto framesOf = [&](int ticks, double steps) {
        frames = 0;
        for (int i = 0; i < ticks; ++i)
            tick(steps);
        return frames;
    };
    EXPECT_EQ(framesOf(160, 15.0 / 1024.0), 10);
    EXPECT_EQ(framesOf(10, 1.0), 10);
}

TEST_F(TransportTest, PlaysTheSelectedInterval)
{
    addTwoNotes();
    transport_.selectInterval(3.0, 8.0);
    for (const auto& [position, begin] :
         {std::pair(0.0, 3.0), {3.0, 3.0}, {5.0, 5.0}, {8.0, 3.0}}) {
        transport_.scrollTo(position);
        transport_.play();
        EXPECT_EQ(transport_.position(), begin) << "played from " << position;
        tick(5.5);
        EXPECT_EQ(transport_.mode(), kStopped);
        EXPECT_EQ(transport_.position(), 3.0);
    }
}

TEST_F(TransportTest, ShowsAKeyUntilItsLastVoiceEnds)
{
    SequenceDocument piece(*this, Reading::Musical, [this] { return now_; });
    for (const auto& [channel, length] : {std::pair(3U, 8.0), std::pair(9U, 2.0)})
        piece.edit()->addNote({.length = length, .velocity = 1.0F, .channel = channel, .key = 36});
    piece.updateExtent();
    piece.transport().play();
    const auto stateAt = [&](double seconds) {
        now_ = 1000.0 + seconds;
        piece.transport().tick();
        return piece.practice().stateOfNote(36);
    };
    EXPECT_EQ(stateAt(0.05), kWanted);
    EXPECT_EQ(stateAt(0.3), kWanted) << "one of them has ended";
    EXPECT_EQ(stateAt(0.6), 0);
}

TEST_F(TransportTest, HasTheSameResultAsVisitingAllNotes)
{
    transport_.setLoop(true);
    for (int i = 0; i < 4000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        if (i % 400 == 0) { // a new, unsorted sequence in which many notes start together
            document_.edit()->select();
            document_.edit()->erase();
            for (unsigned notes = any(40); notes > 0; --notes)
                addAny();
        }
        if (transport_.mode() == kStopped)
            transport_.play();
        if (any(20) == 0)
            transport_.setPosition(any(60) * 0.5);
        if (any(20) == 0)
            transport_.selectInterval(any(8), any(3) * 10.0);
        if (any(20) == 0)
            transport_.stop();
        if (any(8) == 0)
            edit();
        if (any(10) == 0)
            expectLook();
        calls_.clear();
        const double steps = std::array{0.015, 0.25, 0.5, 3.0}[any(4)];
        const State walked = walkThrough(steps);
        tick(steps);
        EXPECT_EQ(state().text(), walked.text());
    }
}

} // namespace velmora
