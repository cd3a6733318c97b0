#pragma once

#include "import/InstrumentDocument.h"

#include <nlohmann/json_fwd.hpp>

namespace velmora {

/// What the program makes of a sampled instrument: its stops with the sound of each key, and what
/// the import brought in and left out.
nlohmann::ordered_json describe(const InstrumentDocument& document);

/// Prints such a description as text.
void printInstrument(const nlohmann::ordered_json& instrument);

} // namespace velmora
