#pragma once

#include "audio/AudioOutput.h"

namespace velmora {

// The sound output among the user's preferences. Main thread only.

/// Returns the output that the user has chosen.
OutputSettings preferredOutput();

/// Remembers another one.
void setPreferredOutput(const OutputSettings& output);

/// Returns the master volume that the user has chosen, a factor from 0 to 1.
float preferredVolume();

} // namespace velmora
