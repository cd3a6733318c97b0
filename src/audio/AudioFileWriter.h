#pragma once

#include <QSaveFile>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <vector>

struct sf_private_tag;

namespace velmora {

/// Writes a stereo sound file: WAV or FLAC of 24 bits, or Ogg Vorbis, by the extension of its name
/// in any letter case. The file appears, whole, with `commit`; until then one of that name stays as
/// it was.
class AudioFileWriter {
public:
    /// Throws std::runtime_error with a sentence when the extension is none of .wav, .flac and
    /// .ogg, or the file cannot be written there.
    AudioFileWriter(const std::filesystem::path& path, double rate);
    ~AudioFileWriter();
    AudioFileWriter(const AudioFileWriter&) = delete;
    AudioFileWriter& operator=(const AudioFileWriter&) = delete;

    /// Adds frames; samples range from −1 to 1. Throws std::runtime_error when they cannot be
    /// written, as on a full disk or beyond the 4 GB of a WAV file.
    void write(const float* left, const float* right, std::size_t frames);

    /// Puts the file in its place. Throws std::runtime_error when that fails.
    void commit();

private:
    std::string name_;
    QSaveFile file_;
    bool isOgg_ = false;
    std::uint64_t framesLeft_ = std::numeric_limits<std::uint64_t>::max();
    std::unique_ptr<sf_private_tag, int (*)(sf_private_tag*)> sound_;
    std::vector<float> interleaved_;
};

} // namespace velmora
