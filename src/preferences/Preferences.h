#pragma once

#include <string>

namespace velmora {

// What the user has set. Every call reads afresh and is cheap enough for drawing. Defaults are only
// kept in memory. On the main thread.

/// The whole number that the user has set for a key, or its default; one beyond what the key allows
/// is corrected. 0 for a key that is not known. The keys: "KeyWidth", the width of a semitone in
/// pixels; "KeyHeight", the height of a step in the piano roll; "KeyRangeLo" and "KeyRangeHi", the
/// lowest and the highest MIDI key shown, always at least two keys.
int getPrefInt(const std::string& key);
void setPrefInt(const std::string& key, int value);

/// The numbers that a key allows, the others being what they are.
struct PrefRange {
    int least;
    int greatest;
};
PrefRange prefRange(const std::string& key);

/// The choice that the user has made for a key: "KeyNames", whether the keyboard names its C keys.
bool getPrefBool(const std::string& key);
void setPrefBool(const std::string& key, bool value);

/// The text that the user has set for a key: "GMBank", the SoundFont of the General MIDI
/// synthesizer, empty unless the user has chosen one.
std::string getPrefString(const std::string& key);
void setPrefString(const std::string& key, const std::string& value);

/// Forgets what the user has set for a key: its default holds again.
void resetPref(const std::string& key);

} // namespace velmora
