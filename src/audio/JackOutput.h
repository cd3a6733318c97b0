#pragma once

#include "audio/AudioOutput.h"
#include "audio/outputDrivers.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Opens an output on the running JACK server, which may be PipeWire's, and connects it to the
/// physical ports, or to those of the client that `settings.device` names. The rate is the
/// server's; a given period becomes the server's. Returns null if there is no such server or
/// client.
std::unique_ptr<AudioOutput> openJackOutput(const OutputSettings& settings);

/// Returns the clients with physical playback ports, or nothing if there is no server.
std::optional<std::vector<OutputDevice>> jackDevices();

} // namespace velmora
