#include "audio/openALSettings.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace velmora {

namespace {

// Two stops would use up the default of 256 sources.
constexpr const char* kSources = "[general]\nsources = 65536\n";
constexpr const char* kOutput = "drivers = jack,\nperiod_size = 128\nperiods = 2\n";

std::filesystem::path variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool userHasSettings()
{
    const auto home = variable("HOME");
    const auto configuration = variable("XDG_CONFIG_HOME");
    std::error_code error;
    return std::filesystem::exists(home / ".alsoftrc", error) ||
           std::filesystem::exists(
               (configuration.empty() ? home / ".config" : configuration) / "alsoft.conf", error);
}

/// Writes the settings to a file in memory, because OpenAL Soft reads them only from a file. Its
/// path includes the process ID, so that child processes find it too. Returns whether the settings
/// apply.
bool writeSettings()
{
    setenv("ALSOFT_LOGLEVEL", "0", 0);
    if (std::getenv("ALSOFT_CONF") != nullptr)
        return false;
    const std::string settings = std::string(kSources) + (userHasSettings() ? "" : kOutput);
    const int file = memfd_create("alsoft.conf", MFD_CLOEXEC);
    if (file < 0 || write(file, settings.data(), settings.size()) < 0)
        return false;
    const std::string path = "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(file);
    setenv("ALSOFT_CONF", path.c_str(), 0);
    return true;
}

} // namespace

void setUpOpenAL()
{
    [[maybe_unused]] static const bool done = writeSettings();
}

} // namespace velmora
