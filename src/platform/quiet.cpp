#include "platform/quiet.h"

#include "base/Log.h"

#include <alsa/asoundlib.h>
#include <fluidsynth.h>
#include <jack/jack.h>

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace velmora {

namespace {

void logAlsa(const char* /*file*/, int /*line*/, const char* function, int /*error*/,
             const char* format, ...)
{
    std::array<char, 512> text{};
    va_list arguments;
    va_start(arguments, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): clang 14 sometimes overlooks va_start
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    logger("platform").debug("ALSA: {}: {}", function, text.data());
}

void logJack(const char* text)
{
    logger("platform").debug("JACK: {}", text);
}

void logFluidSynth(int /*level*/, const char* message, void* platform)
{
    static_cast<const Logger*>(platform)->debug("FluidSynth: {}", message);
}

bool redirect()
{
    // Looked up once, because FluidSynth also logs on the audio thread.
    static Logger platform = logger("platform");
    setenv("JACK_NO_START_SERVER", "1", 0);
    snd_lib_error_set_handler(logAlsa);
    jack_set_error_function(logJack);
    jack_set_info_function(logJack);
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
        fluid_set_log_function(level, logFluidSynth, &platform);
    return true;
}

} // namespace

void quietSoundLibraries()
{
    [[maybe_unused]] static const bool done = redirect();
}

} // namespace velmora
