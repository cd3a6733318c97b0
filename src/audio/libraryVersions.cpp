#include "audio/libraryVersions.h"

#include "audio/OpenALDevice.h"

#include <al.h>
#include <fluidsynth.h>
#include <jack/jack.h>
#include <sndfile.h>

namespace velmora {

namespace {

/// OpenAL tells its version only in a context.
std::string openALVersion()
{
    constexpr double kAnyRate = 48000.0;
    const auto device = OpenALDevice::open(kAnyRate);
    if (!device)
        return "";
    const OpenALDevice::Scope scope(*device);
    return alGetString(AL_VERSION);
}

} // namespace

std::vector<std::pair<std::string, std::string>> soundLibraryVersions()
{
    return {{"OpenAL", openALVersion()},
            {"FluidSynth", fluid_version_str()},
            {"libsndfile", sf_version_string()},
            {"JACK", jack_get_version_string()}};
}

} // namespace velmora
