#pragma once

#include "app/Player.h"
#include "audio/AudioSource.h"
#include "sequencer/SequenceDocument.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace velmora {

/// A part of a sequence that is played several times.
struct RenderLoop {
    double start; ///< In steps, before `end`.
    double end;
    int times; ///< At least 1.
};

struct RenderOptions {
    double rate = 48000.0; ///< Frames per second, as the audio source renders them.
    double tailSeconds = 1.0;
    double speed = 1.0; ///< 1 for the tempo as written.
    std::optional<RenderLoop> loop;
    ChannelSet voices = ChannelSet().set(); ///< The channels that sound.
};

/// Receives the rendered sound block by block.
using AudioSink = std::function<void(const float* left, const float* right, std::size_t frames)>;

/// Receives the progress, from 0 to 1, at intervals. Returns false to cancel.
using RenderProgress = std::function<bool(double done)>;

/// Plays a sequence exactly as the program does, but on a clock of its own: without a device,
/// faster than real time, and with the same result every time. `source` must produce the sound of
/// the player's instrument. Use it on one thread only.
class SequenceRenderer {
public:
    SequenceRenderer(Player& player, AudioSource& source, Reading reading);

    /// The document to render, which the caller fills first.
    SequenceDocument& document() { return document_; }

    /// Renders the whole sequence and the tail. Returns false if `progress` cancelled.
    bool render(const RenderOptions& options, const AudioSink& sink,
                const RenderProgress& progress);

private:
    /// Renders up to a time of the clock, fading on the way.
    void soundUntil(double seconds, double rate, const AudioSink& sink);

    Player& player_;
    AudioSource& source_;
    double now_ = 0.0;
    SequenceDocument document_;
    std::size_t ticks_ = 0, fades_ = 0, frames_ = 0;
    std::vector<float> left_, right_;
};

} // namespace velmora
