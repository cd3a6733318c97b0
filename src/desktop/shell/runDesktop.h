#pragma once

#include <string>
#include <vector>

namespace velmora {

/// Runs the program with its windows until the user quits, opening files at the start. Where it
/// runs already, they are opened there. Returns the exit code.
int runDesktop(int argc, char** argv, const std::vector<std::string>& files);

} // namespace velmora
