#include "audio/OpenALDevice.h"

#include "audio/openALSettings.h"
#include "base/Log.h"
#include "platform/quiet.h"

#include <al.h>
#include <alc.h>
#include <alext.h>

#include <array>

namespace velmora {

namespace {

void setListener()
{
    constexpr std::array kAtAndUp = {0.0F, 0.0F, -1.0F, 0.0F, 1.0F, 0.0F};
    alListenerfv(AL_ORIENTATION, kAtAndUp.data());
    alListener3f(AL_POSITION, 0.0F, 0.0F, 0.0F);
    alListener3f(AL_VELOCITY, 0.0F, 0.0F, 0.0F);
    alListenerf(AL_GAIN, 1.0F);
}

bool setThreadContext(ALCcontext* context)
{
    const auto set = reinterpret_cast<PFNALCSETTHREADCONTEXTPROC>(
        alcGetProcAddress(nullptr, "alcSetThreadContext"));
    return set != nullptr && set(context) == ALC_TRUE;
}

} // namespace

std::unique_ptr<OpenALDevice> OpenALDevice::open()
{
    quietSoundLibraries();
    setUpOpenAL();
    ALCdevice* device = alcOpenDevice(nullptr);
    if (device == nullptr) {
        const Logger log = logger("audio");
        // Diagnostics keep their texts: see docs/decisions.md, 125.
        log.debug("ERROR alcOpenDevice = {}", alGetError());
        log.warn("OpenAL cannot open a sound output: sampled instruments cannot be played");
        return nullptr;
    }
    return withContext(device, nullptr, Reach::Program);
}

std::unique_ptr<OpenALDevice> OpenALDevice::openLoopback(int rate)
{
    setUpOpenAL();
    const auto openDevice = reinterpret_cast<LPALCLOOPBACKOPENDEVICESOFT>(
        alcGetProcAddress(nullptr, "alcLoopbackOpenDeviceSOFT"));
    ALCdevice* device = openDevice == nullptr ? nullptr : openDevice(nullptr);
    if (device == nullptr)
        return nullptr;
    // The sound must not depend on the machine, and the program has a limiter of its own.
    const std::array attributes = {ALC_FREQUENCY,
                                   rate,
                                   ALC_FORMAT_CHANNELS_SOFT,
                                   ALC_STEREO_SOFT,
                                   ALC_FORMAT_TYPE_SOFT,
                                   ALC_FLOAT_SOFT,
                                   ALC_HRTF_SOFT,
                                   ALC_FALSE,
                                   ALC_OUTPUT_LIMITER_SOFT,
                                   ALC_FALSE,
                                   0};
    return withContext(device, attributes.data(), Reach::Thread);
}

std::unique_ptr<OpenALDevice> OpenALDevice::withContext(ALCdevice* device, const int* attributes,
                                                        Reach reach)
{
    ALCcontext* context = alcCreateContext(device, attributes);
    if (context == nullptr) {
        logger("audio").warn(
            "OpenAL cannot create a context (error {}): sampled instruments cannot "
            "be played",
            alcGetError(device));
        alcCloseDevice(device);
        return nullptr;
    }
    auto result = std::unique_ptr<OpenALDevice>(new OpenALDevice(device, context, reach));
    if (reach == Reach::Program)
        alcMakeContextCurrent(context);
    else if (!setThreadContext(context))
        return nullptr;
    setListener();
    return result;
}

OpenALDevice::OpenALDevice(ALCdevice* device, ALCcontext* context, Reach reach)
    : device_(device), context_(context), reach_(reach)
{
}

OpenALDevice::~OpenALDevice()
{
    if (reach_ == Reach::Thread)
        setThreadContext(nullptr);
    else if (alcGetCurrentContext() == context_)
        alcMakeContextCurrent(nullptr);
    alcDestroyContext(context_);
    alcCloseDevice(device_);
}

} // namespace velmora
