#include "audio/openALSettings.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace velmora {

namespace {

// Two stops would use up the default of 256 sources. The default resampler adds audible tones to
// reeds. No output is opened, so none needs to be looked for.
constexpr std::string_view kSettings = "[general]\n"
                                       "sources = 1048576\n"
                                       "resampler = bsinc24\n"
                                       "drivers = null\n";

/// Writes the settings to a file in memory, because OpenAL Soft reads them only from a file. Its
/// path includes the process ID, so that child processes find it too. Returns whether the settings
/// apply.
bool writeSettings()
{
    setenv("ALSOFT_LOGLEVEL", "0", 0);
    if (std::getenv("ALSOFT_CONF") != nullptr)
        return false;
    const int file = memfd_create("alsoft.conf", MFD_CLOEXEC);
    if (file < 0 || write(file, kSettings.data(), kSettings.size()) < 0)
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
