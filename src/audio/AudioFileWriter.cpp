#include "audio/AudioFileWriter.h"

#include "audio/oggSerial.h"
#include "base/Text.h"
#include "platform/writeFile.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <stdexcept>
#include <system_error>

namespace velmora {

namespace {

constexpr int kChannels = 2;

/// The size of a WAV file, including its header, has 32 bits. A sample has three bytes.
constexpr std::uint64_t kMaximumWavFrames = (0xFFFFFFFFU - 4096U) / (3U * kChannels);

/// See docs/decisions.md, 133.
constexpr std::uint32_t kOggSerial = 1;

int formatOf(const std::filesystem::path& path)
{
    const std::string extension = lowerCase(path.extension().string());
    if (extension == ".wav")
        return SF_FORMAT_WAV | SF_FORMAT_PCM_24;
    if (extension == ".flac")
        return SF_FORMAT_FLAC | SF_FORMAT_PCM_24;
    if (extension == ".ogg")
        return SF_FORMAT_OGG | SF_FORMAT_VORBIS;
    if (extension == ".opus")
        return SF_FORMAT_OGG | SF_FORMAT_OPUS;
    if (extension == ".mp3")
        return SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    throw std::runtime_error(path.string() +
                             ": the name must end in .wav, .flac, .ogg, .opus or .mp3");
}

/// True if the encoder supports the rate. libsndfile itself looks too late.
bool hasRate(const SF_INFO& info)
{
    constexpr std::array kOpusRates = {8000, 12000, 16000, 24000, 48000};
    constexpr int kHighestMp3Rate = 48000;
    if ((info.format & SF_FORMAT_SUBMASK) == SF_FORMAT_OPUS)
        return std::ranges::find(kOpusRates, info.samplerate) != kOpusRates.end();
    if ((info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_MPEG)
        return info.samplerate <= kHighestMp3Rate;
    return true;
}

/// Returns the reason for an error of libsndfile. The system's own reason is in errno if errno was
/// 0 before; libsndfile hides it when it writes FLAC or Ogg.
std::string reasonOf(int error)
{
    return errno != 0 ? std::generic_category().message(errno) : sf_error_number(error);
}

} // namespace

AudioFileWriter::AudioFileWriter(const std::filesystem::path& path, double rate)
    : name_(toUtf8(path.string())), sound_(nullptr, sf_close)
{
    SF_INFO info{};
    info.samplerate = static_cast<int>(std::lround(rate));
    info.channels = kChannels;
    info.format = formatOf(path);
    const int type = info.format & SF_FORMAT_TYPEMASK;
    isOgg_ = type == SF_FORMAT_OGG;
    hidesErrors_ = isOgg_ || type == SF_FORMAT_MPEG;
    if (type == SF_FORMAT_WAV)
        framesLeft_ = kMaximumWavFrames;
    if (sf_format_check(&info) == 0 || !hasRate(info))
        throw std::runtime_error(name_ + ": this file format does not support a sample rate of " +
                                 std::to_string(info.samplerate) + " Hz");
    const std::string reason = reasonNotToReplace(path);
    if (!reason.empty())
        throw std::runtime_error(name_ + ": " + reason);
    try {
        file_ = std::make_unique<ReplacingFile>(path);
    } catch (const std::system_error& error) {
        throw std::runtime_error(name_ + ": " + error.code().message());
    }
    sound_.reset(sf_open_fd(file_->handle(), SFM_WRITE, &info, SF_FALSE));
    if (!sound_)
        throw std::runtime_error(name_ + ": " + sf_strerror(nullptr));
}

AudioFileWriter::~AudioFileWriter() = default;

void AudioFileWriter::write(const float* left, const float* right, std::size_t frames)
{
    if (frames > framesLeft_)
        throw std::runtime_error(name_ +
                                 ": a WAV file cannot be larger than 4 GB; write .flac instead");
    framesLeft_ -= frames;
    interleaved_.resize(frames * kChannels);
    for (std::size_t i = 0; i < frames; ++i) {
        interleaved_[kChannels * i] = left[i];
        interleaved_[kChannels * i + 1] = right[i];
    }
    const auto count = static_cast<sf_count_t>(frames);
    errno = 0;
    if (sf_writef_float(sound_.get(), interleaved_.data(), count) != count)
        throw std::runtime_error(name_ + ": " + reasonOf(sf_error(sound_.get())));
}

void AudioFileWriter::commit()
{
    errno = 0;
    const int error = sf_close(sound_.release());
    // libsndfile does not report that the end of such a file could not be written.
    if (error != 0 || (hidesErrors_ && errno != 0))
        throw std::runtime_error(name_ + ": " + reasonOf(error));
    if (isOgg_)
        setOggSerial(file_->handle(), kOggSerial);
    try {
        file_->commit();
    } catch (const std::system_error& failure) {
        throw std::runtime_error(name_ + ": " + failure.code().message());
    }
}

} // namespace velmora
