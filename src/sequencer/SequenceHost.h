#pragma once

#include "audio/Click.h"
#include "midi/messages.h"
#include "sound/PartSound.h"

#include <array>
#include <optional>
#include <span>

namespace velmora {

class LiveKeys;

/// How a channel of a sequence sounds.
struct VoiceSound {
    PartSound part;
    bool isAudible = true; ///< If false, its notes only lead the temperament.

    bool operator==(const VoiceSound&) const = default;
};

/// Those of the channels 0…15.
using VoiceSounds = std::array<VoiceSound, midi::kChannels>;

/// In place of a channel, to stop a key on all of them.
constexpr int kEveryChannel = -1;

/// The application as the sequencer sees it: plays notes and knows which keys the user holds. May
/// be called on any thread.
class SequenceHost {
public:
    virtual ~SequenceHost() = default;

    /// Starts a key on the current instrument at the pitch of the current temperament. `channel`,
    /// 0…15, chooses the division of an organ. `time` is the moment that is meant, in the seconds
    /// of `getTime`; it sounds a constant delay later, or as soon as possible if `time` is 0. Does
    /// nothing if there is no instrument.
    virtual void play(int key, float velocity, int channel, double time) = 0;

    /// Stops a key that was started with `play` for a channel or `kEveryChannel`, on every
    /// instrument that still sounds it. If the user holds it as well, it sounds on.
    virtual void stop(int key, int channel, double time) = 0;

    /// Moves a controller of a channel, 0…15, as a `ControllerEvent` says. `time` is as for `play`.
    virtual void control(int /*number*/, int /*value*/, int /*channel*/, double /*time*/) {}

    /// Sounds a click of the metronome, if there is one. `time` is as for `play`; a click that is
    /// still to come sounds by itself.
    virtual void click(Click /*click*/, double /*time*/) {}

    /// Drops the clicks that are still to come.
    virtual void cancelClicks() {}

    /// Chooses how the channels sound from now on, also what already sounds on them if possible.
    virtual void setVoices(const VoiceSounds& /*voices*/) {}

    /// Changes the program of a channel, 0…15, from a time on, which is as for `play`; empty for
    /// that of the instrument.
    virtual void setProgram(int /*channel*/, const std::optional<PartSound::Preset>& /*preset*/,
                            double /*time*/)
    {
    }

    /// Announces the programs to which channels will change, before the call of `setVoices`.
    virtual void expectPrograms(std::span<const PartSound::Preset> /*presets*/) {}

    /// Chooses how live keys sound. Where that is the plain sound, they play the divisions of the
    /// instrument.
    virtual void setLiveSound(const PartSound& /*sound*/) {}

    /// The keys of live input.
    virtual LiveKeys& liveKeys() = 0;
};

} // namespace velmora
