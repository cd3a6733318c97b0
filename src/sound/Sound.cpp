#include "sound/Sound.h"

#include "base/FormatError.h"

#include <al.h>
#include <spdlog/fmt/fmt.h>

#include <limits>
#include <new>

namespace velmora {

namespace {

/// Returns the rate in whole hertz, or 0, which OpenAL rejects, if `rate` is invalid.
int wholeHertz(double rate)
{
    return rate > 0.0 && rate <= std::numeric_limits<int>::max() ? static_cast<int>(rate) : 0;
}

} // namespace

Sound::Sound(const Pcm& pcm)
    : Sound(pcm.samples, pcm.channels == 2 ? AL_FORMAT_STEREO16 : AL_FORMAT_MONO16, pcm.rate)
{
}

Sound::Sound(std::span<const std::int16_t> data, int format, double rate)
    : size_(static_cast<std::uint32_t>(data.size_bytes())),
      channels_(format == AL_FORMAT_STEREO16 ? 2 : 1), rate_(wholeHertz(rate))
{
    if (data.size_bytes() > std::numeric_limits<ALsizei>::max())
        throw FormatError("a sound of more than 2 GB cannot be played");
    alGetError();
    alGenBuffers(1, &buffer_);
    if (buffer_ == 0)
        throw FormatError("there is no OpenAL device to play sampled instruments with");
    alBufferData(buffer_, format, data.data(), static_cast<ALsizei>(data.size_bytes()), rate_);
    const ALenum error = alGetError();
    if (error == AL_NO_ERROR)
        return;
    alDeleteBuffers(1, &buffer_);
    if (error == AL_OUT_OF_MEMORY)
        throw std::bad_alloc();
    throw FormatError(fmt::format("a sound of {:g} Hz cannot be played", rate));
}

Sound::~Sound()
{
    alDeleteBuffers(1, &buffer_);
}

} // namespace velmora
