#pragma once

#include <string>
#include <vector>

namespace velmora {

/// Opens the files and runs the desktop program until the user quits. If it is already running, the
/// files are opened there. Returns the exit code.
int runDesktop(int argc, char** argv, const std::vector<std::string>& files);

} // namespace velmora
