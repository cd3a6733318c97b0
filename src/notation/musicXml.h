#pragma once

#include "notation/Score.h"

#include <string>

namespace velmora {

/// The channel of percussion in General MIDI, as scores count it, from 1.
constexpr int kScorePercussion = 10;

/// Returns a score as MusicXML 4.0 ("score-partwise"), in UTF-8.
std::string writeMusicXml(const Score& score);

} // namespace velmora
