#pragma once

#include "app/OfflineSound.h"
#include "app/SequenceRenderer.h"
#include "import/InstrumentHost.h"
#include "sequencer/UnsavedSequence.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace velmora {

/// A sound file to be written, and the voices that sound in it.
struct SoundTarget {
    std::filesystem::path file; ///< Ends in .wav, .flac, .ogg, .opus or .mp3.
    ChannelSet voices = ChannelSet().set();
};

/// Returns a file in `folder` for each voice of a piece that has notes and is not silent, called
/// after the piece and the voice: "Fugue - Alto.wav". A voice without a name has its number, and so
/// has one whose name another voice has too. `extension` begins with a dot.
std::vector<SoundTarget> stemsOf(const UnsavedSequence& sequence,
                                 const std::filesystem::path& folder, const std::string& piece,
                                 const std::string& extension);

/// Receives the progress of one file, from 0 to 1, at intervals. Returns false to cancel.
using FileProgress = std::function<bool(std::size_t file, double done)>;

/// Renders a piece into files, each with the voices that it and the options have in common. The
/// files appear together once all are complete. Returns false if `progress` cancelled. Throws
/// std::runtime_error with a sentence, or with an empty message if `host` cancels.
bool renderFiles(const std::vector<SoundTarget>& targets, const SoundSettings& settings,
                 const UnsavedSequence& sequence, const RenderOptions& options,
                 InstrumentHost& host, const FileProgress& progress);

} // namespace velmora
