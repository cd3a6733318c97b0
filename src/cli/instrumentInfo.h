#pragma once

#include "import/InstrumentDocument.h"

#include <nlohmann/json_fwd.hpp>

namespace velmora {

/// Describes an instrument: its programs, or its stops with the sound of each key, and the report
/// of its import.
nlohmann::ordered_json describe(const InstrumentDocument& document);

/// Prints the description of an instrument as text.
void printInstrument(const nlohmann::ordered_json& instrument);

} // namespace velmora
