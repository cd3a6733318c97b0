#pragma once

#include <string>
#include <vector>

namespace velmora {

/// Opens the files and runs the desktop program until the user quits. If it is already running, the
/// files are opened there. `plain` selects the plain reading of MIDI devices. Returns the exit
/// code.
int runDesktop(int argc, char** argv, const std::vector<std::string>& files, bool plain);

} // namespace velmora
