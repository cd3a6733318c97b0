#pragma once

#include <string>

/// The whole number that the user has set for a key, or its default: "KeyRangeLo" and "KeyRangeHi",
/// the lowest and the highest MIDI key of the keyboard. 0 for a key that is not known. Every call
/// reads the preference afresh.
int getPrefInt(const std::string& key);

/// The text that the user has set for a key: "GMBank", the SoundFont of the General MIDI
/// synthesizer, empty unless the user has chosen one.
std::string getPrefString(const std::string& key);
