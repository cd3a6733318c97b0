#pragma once

#include "notation/Score.h"

#include <string>

namespace velmora {

/// Returns a score as MusicXML 4.0 ("score-partwise"), in UTF-8.
std::string writeMusicXml(const Score& score);

} // namespace velmora
