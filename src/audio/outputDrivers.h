#pragma once

#include <string>
#include <vector>

namespace velmora {

/// A device of an output driver.
struct OutputDevice {
    std::string name;  ///< As `OutputSettings` takes it.
    std::string title; ///< For display.
};

/// A way to the sound outputs of the machine.
struct OutputDriver {
    std::string name;  ///< As `OutputSettings` takes it.
    std::string title; ///< For display.
    bool isAvailable = false;
    std::vector<OutputDevice> devices;
};

/// The names of the drivers, the best one first, "none" last.
std::vector<std::string> outputDrivers();

/// Returns the name of a driver for display.
std::string driverTitle(const std::string& driver);

/// Looks for the drivers and devices that are available now, which may take a few seconds if a
/// sound server hangs. Call `quietSoundLibraries` before.
std::vector<OutputDriver> listOutputs();

} // namespace velmora
