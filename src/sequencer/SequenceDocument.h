#pragma once

#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sound/KeyTables.h"

#include <array>
#include <filesystem>
#include <functional>
#include <string>

/// Seconds of a clock that runs evenly, from an arbitrary beginning.
double getTime();

/// A sequence and its transport: plays the notes on the application's current instrument, through
/// its current temperament. Main thread only. Times are in steps; at tempo 120 a second is 15.
class SequenceDocument {
public:
    enum class Mode { Stopped, Playing };

    /// A document with an empty sequence; clears the table of held keys. `clock` gives the seconds
    /// that pass between the calls of `loop`.
    explicit SequenceDocument(SequenceHost& host, std::function<double()> clock = getTime);

    /// Reads a Standard MIDI File, keeping the keys of the keyboard's range. A file that cannot be
    /// read leaves the sequence empty, and `errorString` says why.
    void readFromURL(const std::filesystem::path& path);

    /// What is wrong with the file that could not be read, in one sentence; empty when nothing is.
    const std::string& errorString() const { return errorString_; }

    /// Starts playing, from the selected interval when the position lies outside it; or stops.
    void play();

    /// The tick of the document's timer, 1024 in a second.
    void loop();

    /// Silences every note that playing has started.
    void stop();

    /// Puts the play position.
    void doScroll(double step);

    /// Selects a time interval; equal steps select none.
    void selectInterval(double start, double end);

    /// Whether playing goes on from the beginning of the interval, or of the sequence, at its end.
    void setLoop(bool loop) { loop_ = loop; }

    const Sequence& getSequence() const { return sequence_; }
    Mode mode() const { return mode_; }
    double getOffset() const { return offset_; }

    /// The extent in steps: the end of the last note and 32 more.
    double extent() const { return mx_; }

    /// Whether the file that was read held more than the sequence keeps.
    bool isImported() const { return isImported_; }

    /// How the on-screen keyboard shows a key: 0 for one at rest, 2 for one that is played.
    int stateOfNote(unsigned key) const { return currentNotes_[key]; }

private:
    void doPlay(double seconds);
    bool intervalSelected() const { return selectionStart_ != selectionEnd_; }
    void start(Note& note);
    void silence(Note& note);
    void stopOnInstrument(const Note& note);

    SequenceHost& host_;
    std::function<double()> clock_;
    Sequence sequence_;
    std::string errorString_;

    double tempo_ = 120.0;
    double mx_ = 0.0;
    Mode mode_ = Mode::Stopped;
    double dTime_; ///< When the last tick was.
    double selectionStart_ = 0.0, selectionEnd_ = 0.0;
    double offset_ = 0.0; ///< The play position.
    unsigned note_ = 0;   ///< Cursor of the navigation by notes; playing leaves a key in it.
    bool loop_ = false;
    bool isImported_ = false;
    std::array<int, kKeys> currentNotes_{};
};
