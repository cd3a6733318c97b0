#pragma once

#include "platform/ReplacingFile.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <vector>

struct sf_private_tag;

namespace velmora {

/// Writes a stereo sound file: 24-bit WAV, 24-bit FLAC, Ogg Vorbis, Opus or MP3, depending on its
/// extension in any letter case. The complete file appears when `commit` is called; until then an
/// existing file of that name stays unchanged.
class AudioFileWriter {
public:
    /// `rate` is in hertz. Throws std::runtime_error with a sentence for the user if the extension
    /// is not .wav, .flac, .ogg, .opus or .mp3, if the format does not support the rate, or if the
    /// file cannot be written.
    AudioFileWriter(const std::filesystem::path& path, double rate);
    ~AudioFileWriter();
    AudioFileWriter(const AudioFileWriter&) = delete;
    AudioFileWriter& operator=(const AudioFileWriter&) = delete;

    /// Appends frames with samples from −1 to 1. Throws std::runtime_error if they cannot be
    /// written, for example if the disk is full or a WAV file would exceed 4 GB.
    void write(const float* left, const float* right, std::size_t frames);

    /// Moves the complete file into place. Throws std::runtime_error if that fails.
    void commit();

private:
    std::string name_;
    std::unique_ptr<ReplacingFile> file_;
    bool isOgg_ = false;
    bool hidesErrors_ = false; ///< True if closing it reports none.
    std::uint64_t framesLeft_ = std::numeric_limits<std::uint64_t>::max();
    std::unique_ptr<sf_private_tag, int (*)(sf_private_tag*)> sound_;
    std::vector<float> interleaved_;
};

} // namespace velmora
