#pragma once

#include "audio/AudioOutput.h"
#include "audio/outputDrivers.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Opens an output on the ALSA device that `settings.device` names, or on the default one. Returns
/// null if the device is missing or another program uses it.
std::unique_ptr<AudioOutput> openAlsaOutput(const OutputSettings& settings);

/// Returns the playback devices that ALSA is configured for, or nothing if there are none.
std::optional<std::vector<OutputDevice>> alsaDevices();

} // namespace velmora
