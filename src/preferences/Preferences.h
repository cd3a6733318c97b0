#pragma once

#include <string>

namespace velmora {

// The user's preferences. Reading one is cheap enough for drawing code. Defaults are never written
// to disk. Main thread only.

/// Returns an integer preference, clamped to its range, or 0 if the key is unknown. The keys are
/// "KeyWidth", the width of a semitone in pixels; "KeyHeight", the height of a step in the piano
/// roll in pixels; "KeyRangeLo" and "KeyRangeHi", the lowest and highest MIDI key shown, at least
/// one apart; "NoteNames", a `NoteNaming`; "VelocityCurve", a `VelocityCurve`; "Transposition" and
/// "BendRange", the transposition of MIDI devices and the range of their pitch wheels in semitones;
/// "OutputRate" in hertz and "OutputPeriod" in frames, 0 for automatic; "MasterVolume" in percent;
/// "GlideTime", in which sounding notes take over another pitch, and "CorrectionTime", in which the
/// notes of a chord may correct each other's spelling, in milliseconds; "Drift", a `Drift`;
/// "MetronomeUse", a `MetronomeUse`, "MetronomeVolume" in percent, and "CountIn", the bars before a
/// recording; "PracticeHand", the row of the hand that is practised, "PracticeSplit", the lowest
/// key of the right hand, "PracticeFaster", what a pass adds to the speed in percent, and
/// "PracticeTolerance" in milliseconds.
int getPrefInt(const std::string& key);
void setPrefInt(const std::string& key, int value);

/// The range of an integer preference.
struct PrefRange {
    int least;
    int greatest;
};

/// Returns the values allowed for a key, given the current values of the other keys.
PrefRange prefRange(const std::string& key);

/// Returns a boolean preference: "KeyNames" shows the names of the C keys on the keyboard;
/// "SoundNotes" sounds notes that are pressed or drawn in the piano roll, "DragSelects" lets a drag
/// across an empty place of it select notes instead of a time, and "TimeRunsAcross" lets its time
/// run from left to right instead of upwards;
/// "CorrectTuning" corrects the tuning of SoundFonts themselves; "PlainReading" reads MIDI devices
/// with `midiRead`, without the translator; "StartAsLastTime" opens at the start what was open at
/// the end; "GlideSounding" lets sounding notes take over another pitch before they are struck
/// again; "CorrectSpelling" lets the notes of a chord correct each other's spelling; "ReduceMotion"
/// scrolls at once instead of gliding; "Metronome" lets the metronome click, and
/// "MetronomeDivisions" the parts of its beats as well; "PracticeWaits" waits for missing keys,
/// "PracticeSlowsDown" slows down after mistakes, and "FallingNotes" shows the notes above the
/// keyboard.
bool getPrefBool(const std::string& key);
void setPrefBool(const std::string& key, bool value);

/// Returns a text preference: "GMBank" is the path of the SoundFont for the General MIDI
/// synthesizer, "Output" the name of an audio driver, "OutputDevice" that of one of its devices,
/// and "Language" the code of a language, such as "de"; each is empty if the user has not chosen
/// one. "Scheme" is "Calm" or "Classic".
std::string getPrefString(const std::string& key);
void setPrefString(const std::string& key, const std::string& value);

/// Returns whether the user has set a key, even to its default.
bool isPrefSet(const std::string& key);

/// Restores a key's default.
void resetPref(const std::string& key);

} // namespace velmora
