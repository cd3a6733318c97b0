#pragma once

namespace velmora {

/// Runs the program on its command line. Gives the exit code: 0; 1 when what was asked for failed;
/// 2 when the command line is wrong.
int runCommandLine(int argc, char** argv);

} // namespace velmora
