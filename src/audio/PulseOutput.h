#pragma once

#include "audio/AudioOutput.h"
#include "audio/outputDrivers.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Opens an output on the running PulseAudio server, which may be PipeWire's, and on the sink that
/// `settings.device` names. Returns null if there is no such server or sink.
std::unique_ptr<AudioOutput> openPulseOutput(const OutputSettings& settings);

/// Returns the sinks of the server, or nothing if no server answers.
std::optional<std::vector<OutputDevice>> pulseDevices();

} // namespace velmora
