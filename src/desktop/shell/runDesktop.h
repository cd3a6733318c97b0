#pragma once

#include "audio/AudioOutput.h"

#include <string>
#include <vector>

namespace velmora {

/// Opens the files and runs the desktop program until the user quits. If it is already running, the
/// files are opened there. `plain` selects the plain reading of MIDI devices, and `output` is what
/// plays. Returns the exit code.
int runDesktop(int argc, char** argv, const std::vector<std::string>& files, bool plain,
               const OutputSettings& output);

} // namespace velmora
