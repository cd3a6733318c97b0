#include "app/renderFiles.h"

#include "audio/AudioFileWriter.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <memory>

namespace velmora {

namespace {

/// The longest name of a voice in the name of a file, in bytes.
constexpr std::size_t kLongestVoice = 100;

/// Returns a text as a part of a file's name, without characters that some disk does not allow.
std::string asFileName(std::string text)
{
    for (char& letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x20 || code == 0x7f ||
            std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos)
            letter = '_';
    }
    std::size_t end = std::min(text.size(), kLongestVoice);
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80)
        --end; // never within a letter
    return text.substr(0, end);
}

/// Returns false if `progress` cancelled.
bool renderFile(AudioFileWriter& file, OfflineSound& sound, const UnsavedSequence& sequence,
                const RenderOptions& options, const RenderProgress& progress)
{
    SequenceRenderer renderer(sound.player(), sound.source(), sequence.reading);
    renderer.document().recover(sequence);
    renderer.document().useVoices();
    sound.correctTuning();
    return renderer.render(
        options,
        [&](const float* left, const float* right, std::size_t frames) {
            file.write(left, right, frames);
        },
        progress);
}

} // namespace

std::vector<SoundTarget> stemsOf(const UnsavedSequence& sequence,
                                 const std::filesystem::path& folder, const std::string& piece,
                                 const std::string& extension)
{
    const VoiceSounds sounds = sequence.voices.sounds();
    ChannelSet present;
    for (const Note& note : sequence.notes)
        present.set(note.channel % midi::kChannels);
    std::array<std::string, midi::kChannels> names;
    for (std::size_t channel = 0; channel < names.size(); ++channel)
        if (present[channel] && sounds[channel].isAudible)
            names[channel] = asFileName(sequence.voices[channel].name);
    std::vector<SoundTarget> stems;
    for (std::size_t channel = 0; channel < names.size(); ++channel) {
        if (!present[channel] || !sounds[channel].isAudible)
            continue;
        const std::string number = std::to_string(channel + 1);
        const bool isShared =
            std::ranges::count(names, lowerCase(names[channel]),
                               [](const auto& name) { return lowerCase(name); }) > 1;
        std::string name = names[channel].empty() ? number
                           : isShared             ? names[channel] + " " + number
                                                  : names[channel];
        const std::string file = asFileName(piece).append(" - ").append(name).append(extension);
        stems.push_back({folder / file, ChannelSet().set(channel)});
    }
    return stems;
}

bool renderFiles(const std::vector<SoundTarget>& targets, const SoundSettings& settings,
                 const UnsavedSequence& sequence, const RenderOptions& options,
                 InstrumentHost& host, const FileProgress& progress)
{
    // All are created first, because that fails at once if one cannot be written.
    std::vector<std::unique_ptr<AudioFileWriter>> files;
    files.reserve(targets.size());
    for (const SoundTarget& target : targets)
        files.push_back(std::make_unique<AudioFileWriter>(target.file, options.rate));
    for (std::size_t i = 0; i < targets.size(); ++i) {
        // The instrument is loaded for each file, because echo, chorus and adaptive tuning go on
        // from what they have played.
        OfflineSound sound(settings, options.rate, host);
        RenderOptions own = options;
        own.voices &= targets[i].voices;
        if (!renderFile(*files[i], sound, sequence, own,
                        [&](double done) { return progress(i, done); }))
            return false;
    }
    for (const auto& file : files)
        file->commit();
    return true;
}

} // namespace velmora
