#include "audio/OpenALDevice.h"

#include "audio/openALSettings.h"
#include "base/Log.h"

#include <al.h>
#include <alc.h>
#include <alext.h>

#include <array>
#include <cmath>
#include <string_view>
#include <vector>

namespace velmora {

namespace {

/// The functions of OpenAL Soft's extensions; null where they are missing.
struct Extensions {
    LPALCLOOPBACKOPENDEVICESOFT openDevice;
    LPALCRENDERSAMPLESSOFT render;
    LPALCRESETDEVICESOFT reset;
    PFNALCSETTHREADCONTEXTPROC setContext;
    PFNALCGETTHREADCONTEXTPROC context;

    bool areComplete() const
    {
        return openDevice != nullptr && render != nullptr && reset != nullptr &&
               setContext != nullptr && context != nullptr;
    }
};

template <class Function> Function extension(const char* name)
{
    return reinterpret_cast<Function>(alcGetProcAddress(nullptr, name));
}

const Extensions& extensions()
{
    static const Extensions found = [] {
        setUpOpenAL();
        return Extensions{
            extension<LPALCLOOPBACKOPENDEVICESOFT>("alcLoopbackOpenDeviceSOFT"),
            extension<LPALCRENDERSAMPLESSOFT>("alcRenderSamplesSOFT"),
            extension<LPALCRESETDEVICESOFT>("alcResetDeviceSOFT"),
            extension<PFNALCSETTHREADCONTEXTPROC>("alcSetThreadContext"),
            extension<PFNALCGETTHREADCONTEXTPROC>("alcGetThreadContext"),
        };
    }();
    return found;
}

/// The sound must not depend on the machine. The program has a limiter of its own, and uses no
/// effects, which would make every voice more expensive.
std::array<int, 13> attributesAt(double rate)
{
    return {ALC_FREQUENCY,
            static_cast<int>(std::lround(rate)),
            ALC_FORMAT_CHANNELS_SOFT,
            ALC_STEREO_SOFT,
            ALC_FORMAT_TYPE_SOFT,
            ALC_FLOAT_SOFT,
            ALC_HRTF_SOFT,
            ALC_FALSE,
            ALC_OUTPUT_LIMITER_SOFT,
            ALC_FALSE,
            ALC_MAX_AUXILIARY_SENDS,
            0,
            0};
}

/// Returns OpenAL's number of its linear resampler.
int linearResampler()
{
    const auto name = reinterpret_cast<LPALGETSTRINGISOFT>(alGetProcAddress("alGetStringiSOFT"));
    const int count = name == nullptr ? 0 : alGetInteger(AL_NUM_RESAMPLERS_SOFT);
    for (int i = 0; i < count; ++i)
        if (std::string_view(name(AL_RESAMPLER_NAME_SOFT, i)) == "Linear")
            return i;
    return alGetInteger(AL_DEFAULT_RESAMPLER_SOFT);
}

void setListener()
{
    constexpr std::array kAtAndUp = {0.0F, 0.0F, -1.0F, 0.0F, 1.0F, 0.0F};
    alListenerfv(AL_ORIENTATION, kAtAndUp.data());
    alListener3f(AL_POSITION, 0.0F, 0.0F, 0.0F);
    alListener3f(AL_VELOCITY, 0.0F, 0.0F, 0.0F);
    alListenerf(AL_GAIN, 1.0F);
}

} // namespace

OpenALDevice::Scope::Scope(const OpenALDevice& device) : before_(extensions().context())
{
    extensions().setContext(device.context_);
}

OpenALDevice::Scope::~Scope()
{
    extensions().setContext(before_);
}

std::unique_ptr<OpenALDevice> OpenALDevice::open(double rate)
{
    const Logger log = logger("audio");
    if (!extensions().areComplete()) {
        log.warn("OpenAL cannot render on request: sampled instruments cannot be played");
        return nullptr;
    }
    ALCdevice* device = extensions().openDevice(nullptr);
    if (device == nullptr) {
        // Diagnostics keep their texts: see docs/decisions.md, 125.
        log.debug("ERROR alcOpenDevice = {}", alcGetError(nullptr));
        log.warn("OpenAL cannot open a device: sampled instruments cannot be played");
        return nullptr;
    }
    ALCcontext* context = alcCreateContext(device, attributesAt(rate).data());
    if (context == nullptr) {
        log.warn("OpenAL cannot create a context at {:g} Hz (error {}): sampled instruments cannot "
                 "be played",
                 rate, alcGetError(device));
        alcCloseDevice(device);
        return nullptr;
    }
    auto result =
        std::unique_ptr<OpenALDevice>(new OpenALDevice(device, context, std::round(rate)));
    const Scope scope(*result);
    setListener();
    result->best_ = alGetInteger(AL_DEFAULT_RESAMPLER_SOFT);
    result->linear_ = linearResampler();
    result->monoLevel_ = result->measureMonoLevel();
    return result;
}

OpenALDevice::OpenALDevice(ALCdevice* device, ALCcontext* context, double rate)
    : device_(device), context_(context), rate_(rate)
{
}

float OpenALDevice::measureMonoLevel()
{
    constexpr std::size_t kFrames = 256;
    constexpr int kAnyRate = 48000;
    const std::vector<float> steady(kFrames, 1.0F);
    unsigned buffer = 0;
    alGenBuffers(1, &buffer);
    alBufferData(buffer, AL_FORMAT_MONO_FLOAT32, steady.data(),
                 static_cast<ALsizei>(kFrames * sizeof(float)), kAnyRate);
    unsigned source = 0;
    alGenSources(1, &source);
    alSourcei(source, AL_BUFFER, static_cast<ALint>(buffer));
    alSourcei(source, AL_LOOPING, AL_TRUE);
    alSourcePlay(source);
    std::vector<float> heard(2 * kFrames);
    render(heard.data(), kFrames);
    alDeleteSources(1, &source);
    alDeleteBuffers(1, &buffer);
    return heard.back() > 0.0F ? heard.back() : 1.0F;
}

OpenALDevice::~OpenALDevice()
{
    alcDestroyContext(context_);
    alcCloseDevice(device_);
}

double OpenALDevice::setRate(double rate)
{
    if (extensions().reset(device_, attributesAt(rate).data()) == ALC_TRUE)
        rate_ = std::round(rate);
    else
        logger("audio").error("OpenAL cannot render at {:g} Hz (error {}) and goes on at {:g} Hz",
                              rate, alcGetError(device_), rate_);
    return rate_;
}

// OpenAL doubles its list of voices whenever a start finds no room behind all voices that have ever
// been used, and allocates for changes that are on their way to voices. So as many as may sound are
// started here once, silently, in a list that has room for a batch more, and one of them is
// changed.
void OpenALDevice::prepare(std::span<const unsigned> sources, std::size_t batch)
{
    std::vector<unsigned> started(sources.begin(), sources.end());
    for (const unsigned source : started)
        alSourcef(source, AL_GAIN, 0.0F);
    started.resize(sources.size() + batch, sources.back());
    alSourcePlayv(static_cast<ALsizei>(started.size()), started.data());
    alSourcef(sources.front(), AL_GAIN, 0.0F);
    std::array<float, 2> frame{};
    render(frame.data(), 1);
    alSourceStopv(static_cast<ALsizei>(sources.size()), sources.data());
}

void OpenALDevice::setResampler(unsigned source, Resampler resampler) const
{
    alSourcei(source, AL_SOURCE_RESAMPLER_SOFT, resampler == Resampler::Best ? best_ : linear_);
}

void OpenALDevice::render(float* interleaved, std::size_t frames)
{
    extensions().render(device_, interleaved, static_cast<int>(frames));
}

} // namespace velmora
