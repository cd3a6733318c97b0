#include "audio/outputDrivers.h"

#include "audio/AlsaOutput.h"
#include "audio/JackOutput.h"
#include "audio/PulseOutput.h"
#include "audio/WritingOutput.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

struct Driver {
    const char* name;
    const char* title;
    std::unique_ptr<AudioOutput> (*open)(const OutputSettings&);
    std::optional<std::vector<OutputDevice>> (*devices)();
};

std::optional<std::vector<OutputDevice>> noDevices()
{
    return std::vector<OutputDevice>();
}

constexpr std::array<Driver, 4> kDrivers = {{
    {"jack", "JACK", openJackOutput, jackDevices},
    {"pulseaudio", "PulseAudio", openPulseOutput, pulseDevices},
    {"alsa", "ALSA", openAlsaOutput, alsaDevices},
    {"none", "No sound", openSilentOutput, noDevices},
}};

} // namespace

std::vector<std::string> outputDrivers()
{
    std::vector<std::string> names;
    names.reserve(kDrivers.size());
    for (const Driver& driver : kDrivers)
        names.emplace_back(driver.name);
    return names;
}

std::string driverTitle(const std::string& driver)
{
    const auto* const found = std::find_if(kDrivers.begin(), kDrivers.end(),
                                           [&](const Driver& each) { return driver == each.name; });
    return found == kDrivers.end() ? driver : found->title;
}

std::vector<OutputDriver> listOutputs()
{
    std::vector<OutputDriver> drivers;
    for (const Driver& driver : kDrivers) {
        auto devices = driver.devices();
        const bool isAvailable = devices.has_value();
        drivers.push_back({driver.name, driver.title, isAvailable,
                           isAvailable ? std::move(*devices) : std::vector<OutputDevice>()});
    }
    return drivers;
}

std::unique_ptr<AudioOutput> AudioOutput::open(const OutputSettings& settings)
{
    for (const Driver& driver : kDrivers) {
        if (!settings.driver.empty() && settings.driver != driver.name)
            continue;
        if (auto output = driver.open(settings))
            return output;
    }
    return nullptr;
}

} // namespace velmora
