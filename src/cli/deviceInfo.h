#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace velmora {

// What the machine has for playing. Each of these may take a few seconds if a sound server hangs.

/// Describes the MIDI inputs and their service.
nlohmann::ordered_json describeMidi();

/// Describes the preferred output, which it opens for a moment; null if there is none.
nlohmann::ordered_json describeAudio();

/// Describes the drivers that are available, and their devices.
nlohmann::ordered_json describeOutputs();

/// Returns the General MIDI bank that can be loaded; empty if there is none.
std::string usableBank();

} // namespace velmora
