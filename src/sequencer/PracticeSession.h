#pragma once

#include "sequencer/KeyEvents.h"
#include "sequencer/PracticePart.h"
#include "sequencer/PracticeResult.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"
#include "sound/keys.h"

#include <QObject>

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

/// What the user has chosen for a practice session.
struct PracticeOptions {
    PracticePart part;

    /// True to wait wherever a key is missing. Otherwise the piece goes on without it, after it has
    /// begun with the user's first key if that one is due at once.
    bool waits = true;

    /// How early a key may be struck, and how long the keys of a chord may take, in seconds.
    double tolerance = 0.2;

    /// What a pass without a mistake adds to the speed, which rises to 1 at most.
    double speedStep = 0.0;

    /// True if a pass with mistakes takes as much from the speed.
    bool slowsDown = false;
};

/// Plays a piece in time without the user's part, and waits for the keys of the part or passes them
/// by. Judges every key by the moment at which it was struck, however late the main thread is. Main
/// thread only.
class PracticeSession : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the session.
    PracticeSession(Transport& transport, const Sequence& sequence);

    bool isRunning() const { return isRunning_; }

    /// What the user plays.
    const PracticePart& part() const { return options_.part; }

    /// False if the piece goes on without missing keys.
    bool waits() const { return options_.waits; }

    /// Starts to play, from the start of the selected interval, or from the position if nothing is
    /// selected. Returns false if the part has no notes there, or if the transport records.
    bool start(const PracticeOptions& options);

    /// Stops playing. The session also ends with the piece, and whenever playing stops.
    void stop();

    /// Waits for the chord at the position, after an edit or a jump.
    void seek();

    /// What the user has played since the start of the session.
    const PracticeResult& result() const { return result_; }

    /// Returns the state of a key as bit flags, as `KeyboardDocument::stateOfNote` does. A struck
    /// key of the chord is wanted and pressed.
    int stateOfNote(unsigned key) const;

signals:
    void started();

    /// The session has ended; `result` is complete.
    void ended();

private:
    /// Notes that are struck together.
    struct Chord {
        double step;
        std::bitset<kKeys> keys;
        std::bitset<kKeys> missing;
    };

    void follow(double until);
    void strike(const KeyEvent& event, double until);

    /// Without waiting, moves on to the chord that is nearest to a time, in seconds.
    void passChords(double time);

    /// Counts the keys that are still missing from the current chord.
    void countMissed();

    /// Moves on to the next chord at a time, as `waitForChord` does.
    void nextChord(double time);

    void findChords();

    /// Returns when a chord is due in this pass of the loop or in the next one, in seconds.
    double dueTimeOf(std::size_t chord, bool isInNextPass) const;

    /// Returns the latest time for the keys of the current chord if nothing waits for them.
    double endOfChord() const;

    /// Waits for the current chord, if there is one. `time` is since when the position moves again
    /// if it has waited, in seconds.
    void waitForChord(double time);

    void beginPass();
    void turn();
    void changeSpeed(bool isClean);

    /// Counts a pass. Returns true if it was without a mistake.
    bool countPass();
    void end();

    /// The part of the piece that is practised.
    Interval stretch() const;

    Transport& transport_;
    const Sequence& sequence_;
    PracticeOptions options_;
    PracticeResult result_;
    bool isRunning_ = false;
    std::vector<Chord> chords_;
    std::size_t chord_ = 0;   ///< The chord that is waited for.
    bool isNextPass_ = false; ///< True if that chord belongs to the next pass of the loop.
    double dueTime_ = 0.0;    ///< When that chord is due, in seconds.
    bool isUntimed_ = false;  ///< True if that chord is due so soon that nobody can be in time.
    double lastPosition_ = 0.0;
    std::size_t mistakes_ = 0;     ///< Of this pass.
    double followedTo_ = 0.0;      ///< The keys before this time, in seconds, have been judged.
    std::uint64_t place_ = 0;      ///< Of the next key event.
    std::vector<KeyEvent> events_; ///< Those that are not due yet, in order of time.
    std::bitset<kKeys> wrongKeys_; ///< Those that are still down.
};

} // namespace velmora
