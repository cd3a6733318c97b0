#pragma once

#include "audio/AudioOutput.h"
#include "audio/outputDrivers.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// Opens an output on the ALSA device that `settings.device` names, or on the default one. Returns
/// null if the device is missing or another program uses it.
std::unique_ptr<AudioOutput> openAlsaOutput(const OutputSettings& settings);

/// Returns the playback devices that ALSA is configured for, or nothing if there are none.
std::optional<std::vector<OutputDevice>> alsaDevices();

/// Returns true if a device exists but something uses it, which may be this program.
bool isAlsaDeviceBusy(const std::string& device);

} // namespace velmora
