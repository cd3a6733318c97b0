#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace velmora {

/// What was found out about one thing that the program uses.
struct Finding {
    std::string topic;  ///< As in "MIDI inputs".
    std::string found;  ///< Empty if there is none.
    std::string advice; ///< What would help; empty if nothing is missing.
};

/// How long to wait for a part of the system that may hang.
constexpr std::chrono::seconds kLongestSearch{8};

/// Finds out about the program, its libraries, the machine and the desktop. Must be called while
/// the program has only one thread.
std::vector<Finding> systemFindings();

} // namespace velmora
