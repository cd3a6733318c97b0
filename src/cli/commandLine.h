#pragma once

namespace velmora {

/// Runs the program. Returns the exit code: 0 on success, 1 on failure, 2 if the command line is
/// wrong.
int runCommandLine(int argc, char** argv);

} // namespace velmora
