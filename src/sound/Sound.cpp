#include "sound/Sound.h"

#include "audio/SampleRenderer.h"
#include "base/FormatError.h"
#include "base/MemoryGuard.h"

#include <al.h>
#include <alext.h>
#include <spdlog/fmt/fmt.h>

#include <array>
#include <limits>
#include <new>

namespace velmora {

namespace {

/// Returns the rate in whole hertz, or 0, which OpenAL rejects, if `rate` is invalid.
int wholeHertz(double rate)
{
    return rate > 0.0 && rate <= std::numeric_limits<int>::max() ? static_cast<int>(rate) : 0;
}

int formatOf(const Pcm& pcm)
{
    if (pcm.floats.empty())
        return pcm.channels == 2 ? AL_FORMAT_STEREO16 : AL_FORMAT_MONO16;
    return pcm.channels == 2 ? AL_FORMAT_STEREO_FLOAT32 : AL_FORMAT_MONO_FLOAT32;
}

std::span<const std::byte> bytesOf(const Pcm& pcm)
{
    return pcm.floats.empty() ? std::as_bytes(std::span(pcm.samples))
                              : std::as_bytes(std::span(pcm.floats));
}

} // namespace

Sound::Sound(SampleRenderer& renderer, const Pcm& pcm, std::optional<Loop> loop,
             const Sound* beside)
    : Sound(renderer, bytesOf(pcm), pcm.size(), formatOf(pcm), pcm.channels, pcm.rate, loop, beside)
{
}

Sound::Sound(SampleRenderer& renderer, std::span<const std::int16_t> data, int format, double rate)
    : Sound(renderer, std::as_bytes(data), data.size(), format,
            format == AL_FORMAT_STEREO16 ? 2 : 1, rate, {}, nullptr)
{
}

Sound::Sound(SampleRenderer& renderer, std::span<const std::byte> data, std::size_t samples,
             int format, int channels, double rate, std::optional<Loop> loop, const Sound* beside)
    : renderer_(renderer), size_(static_cast<std::uint32_t>(data.size())),
      frames_(static_cast<std::uint32_t>(samples / static_cast<unsigned>(channels))),
      channels_(channels), rate_(wholeHertz(rate)), loop_(loop)
{
    if (data.size() > std::numeric_limits<ALsizei>::max())
        throw FormatError("a sound of more than 2 GB cannot be played");
    MemoryGuard::machine().require(data.size());
    device_ = beside != nullptr ? beside->device() : renderer.emptiestDevice();
    SampleSources& device = renderer.device(device_);
    const auto here = device.scope();
    alGetError();
    alGenBuffers(1, &buffer_);
    alBufferData(buffer_, format, data.data(), static_cast<ALsizei>(data.size()), rate_);
    if (loop_) {
        const std::array points{static_cast<ALint>(loop_->begin), static_cast<ALint>(loop_->end)};
        alBufferiv(buffer_, AL_LOOP_POINTS_SOFT, points.data());
    }
    const ALenum error = alGetError();
    if (error == AL_NO_ERROR) {
        device.bytes += data.size();
        return;
    }
    alDeleteBuffers(1, &buffer_);
    if (error == AL_OUT_OF_MEMORY)
        throw std::bad_alloc();
    throw FormatError(fmt::format("a sound of {:g} Hz cannot be played", rate));
}

} // namespace velmora
