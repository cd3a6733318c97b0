#pragma once

#include "app/Player.h"
#include "audio/AudioSource.h"
#include "sequencer/SequenceDocument.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace velmora {

/// A stretch of a sequence to be played several times over.
struct RenderLoop {
    double start; ///< In steps, before `end`.
    double end;
    int times; ///< At least 1.
};

struct RenderOptions {
    double rate = 48000.0; ///< Frames in a second; that of the audio source.
    double tailSeconds = 1.0;
    double tempo = 120.0; ///< In beats a minute.
    std::optional<RenderLoop> loop;
};

/// Takes the sound as it is made, block by block.
using AudioSink = std::function<void(const float* left, const float* right, std::size_t frames)>;

/// Told between the blocks how much is done, from 0 to 1; false gives the rendering up.
using RenderProgress = std::function<bool(double done)>;

/// Plays a sequence as the program plays it, on the instrument and temperament of a host, on a
/// clock of its own: without a device, faster than it sounds, the same at every run. `source` is
/// what the instrument sounds through. On one thread, whichever it is.
class SequenceRenderer {
public:
    SequenceRenderer(Player& player, AudioSource& source);

    /// What is rendered: to be filled before.
    SequenceDocument& document() { return document_; }

    /// Plays from the beginning to the end and for the tail. False when `progress` gave it up.
    bool render(const RenderOptions& options, const AudioSink& sink,
                const RenderProgress& progress);

private:
    /// Sounds up to a moment of the clock, fading on the way.
    void soundUntil(double seconds, double rate, const AudioSink& sink);

    Player& player_;
    AudioSource& source_;
    double now_ = 0.0;
    SequenceDocument document_;
    std::size_t ticks_ = 0, fades_ = 0, frames_ = 0;
    std::vector<float> left_, right_;
};

} // namespace velmora
