#pragma once

#include "app/ChannelPedals.h"
#include "app/KeyHolders.h"
#include "audio/Metronome.h"
#include "base/Clock.h"
#include "base/fading.h"
#include "midi/messages.h"
#include "platform/PriorityMutex.h"
#include "sequencer/Controllers.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceHost.h"
#include "sound/Instrument.h"
#include "tuning/Temperament.h"

#include <array>
#include <atomic>
#include <bitset>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace velmora {

/// Channels of a sequence, by their index.
using ChannelSet = std::bitset<midi::kChannels>;

/// Owns what sounds: which instrument and temperament are current, which instrument sounds each
/// key, the keys of live input, and the lock that guards them all. Every function may be called on
/// any thread; none of them allocates while keys are played.
///
/// The instruments and temperaments themselves are borrowed. An instrument must exist until it is
/// removed or the player is destroyed; a temperament, until another one is current or the player is
/// destroyed.
class Player : public SequenceHost {
public:
    /// Which division of the current instrument each source and each channel of a sequence plays.
    struct Divisions {
        std::array<std::uint8_t, kKeySources> ofSources{};
        std::array<std::uint8_t, midi::kChannels> ofChannels{};
    };

    /// Makes an instrument the current one and tunes it; everything plays its main division. Keys
    /// that sound on the previous one go on until they are released.
    void setInstrument(Instrument& instrument);

    /// Chooses the divisions of the current instrument from now on. Keys that are held stay on
    /// theirs. Does nothing if `instrument` is not the current one.
    void setDivisions(const Instrument& instrument, const Divisions& divisions);

    /// The divisions of the current instrument that are played.
    Divisions divisions() const;

    /// Chooses the channels of a sequence whose notes sound from now on; all do by default. The
    /// temperament goes on following the notes of every channel, so that none sounds at another
    /// pitch than it has among the others.
    void setHeard(const ChannelSet& channels);

    /// Makes a temperament the current one and retunes the instrument, including sounding keys.
    void setTemperament(Temperament& temperament);

    /// Forgets an instrument, which must not be the current one.
    void remove(const Instrument& instrument);

    bool isCurrent(const Instrument& instrument) const;

    /// Calls `use(Instrument&, Temperament&)` with the current pair while holding the lock. Returns
    /// false, without a call, if there is no instrument or no temperament. `use` must not call the
    /// player.
    template <class Use> bool with(Use&& use)
    {
        const std::lock_guard lock(mutex_);
        if (instrument_ == nullptr || temperament_ == nullptr)
            return false;
        std::forward<Use>(use)(*instrument_, *temperament_);
        return true;
    }

    /// Marks a live key as pressed and sounds it. `time` is when it was pressed, in the seconds of
    /// `getTime`; it sounds a constant delay later. Keys outside 0…127 are ignored, and the
    /// velocity is clamped to 0…1.
    void keyOn(int key, float velocity, KeySource source = kMouse, double time = getTime());

    /// Marks a live key as released and, if nobody else holds it, stops it on every instrument that
    /// sounds it.
    void keyOff(int key, KeySource source = kMouse, double time = getTime());

    /// Moves the pedals of a source.
    void setSustain(KeySource source, bool down, double time);
    void setSostenuto(KeySource source, bool down, double time);

    /// Presses or releases one soft pedal. Notes are soft while any is down.
    void setSoft(bool soft);

    /// Sets what time it is for what is played without one; by default that is `getTime`. A
    /// rendering goes by its own time.
    void setTime(double seconds);

    /// Chooses how sounding keys take over the pitches that follow.
    void setGlide(const Glide& glide);

    /// Shifts every key by `cents`.
    void bend(double cents, double time);

    /// Releases every key and pedal of a source, such as a device that has vanished.
    void releaseAll(KeySource source);

    /// Forces a spelling in the current temperament and plays its key, as `Temperament::isomorph`
    /// does. `stop` releases it.
    void isomorph(int n);

    void play(int key, float velocity, int channel, double time) override;
    void stop(int key, int channel, double time) override;

    /// Gives each channel that does not sound like the instrument itself a part of its own, if the
    /// instrument has parts, and ends the notes of channels that are not audible any more.
    void setVoices(const VoiceSounds& voices) override;

    void setProgram(int channel, const std::optional<PartSound::Preset>& preset,
                    double time) override;
    void expectPrograms(std::span<const PartSound::Preset> presets) override;

    /// Keys that are held stay on what they play.
    void setLiveSound(const PartSound& sound) override;

    /// Calls a function whenever `setVoices` or `setLiveSound` was called. It may call the player.
    void tellVoices(std::function<void()> used) { voicesUsed_ = std::move(used); }
    LiveKeys& liveKeys() override { return liveKeys_; }

    /// Lets a metronome click, which must outlive the player. Without one, sequences play without
    /// clicks.
    void setMetronome(Metronome& metronome) { metronome_ = &metronome; }

    /// Moves the pedals and the other controllers of the channels of sequences.
    void control(int number, int value, int channel, double time) override;
    void click(Click click, double time) override;
    void cancelClicks() override;

    /// Ends every sound of every instrument at once and releases every live key.
    void silence();

    /// The keys that sound and have not been stopped, whoever plays them.
    KeySet soundingKeys() const;

    /// Returns how many seconds the slowest live key since the last call took to get here.
    double takeInputDelay() { return inputDelay_.exchange(0.0); }

    /// Fades released keys and the spellings of the temperament by one step. Call this 60 times a
    /// second.
    void fade();

private:
    void controlPart(std::size_t channel, int number, int value, double time);

    /// An instrument and the keys that were started and not yet stopped on it.
    struct Sounding {
        Instrument* instrument;
        DivisionKeys keys;
    };

    // Called with the lock held:
    bool follow(int key, float velocity, double time);
    void start(std::size_t division, int key, float velocity, double time);
    void release(std::size_t division, std::size_t key, KeySource source, double time);
    void stopChannel(std::size_t channel, std::size_t key, double time);
    void letGo(std::size_t key, double time);
    void useVoices();
    void useVoice(std::size_t channel);
    void useLiveSound();
    bool isAudible(std::size_t channel) const;
    void stopEverywhere(std::size_t division, std::size_t key, double time);
    void stopEverywhere(const DivisionKeys& keys, double time);
    void markCurrent(std::size_t division, int key);
    double momentFor(double time) const;

    mutable PriorityMutex mutex_;
    Instrument* instrument_ = nullptr;
    Temperament* temperament_ = nullptr;
    std::vector<Sounding> instruments_; ///< All that have been current and were not removed.
    KeyHolders holders_;
    Divisions divisions_;
    ChannelSet heard_ = ChannelSet().set();
    VoiceSounds voices_{};
    std::vector<PartSound::Preset> expectedPrograms_;
    PartSound liveSound_;
    bool hasLivePart_ = false; ///< Live keys play a part of their own.
    std::function<void()> voicesUsed_ = [] {};
    ChannelSet hasPart_; ///< The channels that play a part of their own.
    /// The division on which each channel of a sequence last started each key.
    std::array<std::array<std::uint8_t, kKeys>, midi::kChannels> startedOn_{};
    /// The keys of each channel that sound, and those that do not because the channel is silent.
    std::array<KeySet, midi::kChannels> playing_, unheard_;
    LiveKeys liveKeys_;
    ChannelPedals pedals_;
    std::bitset<midi::kChannels> softChannels_; ///< Those whose soft pedal is down.
    /// The controllers of the instrument itself that each channel has moved.
    std::array<std::bitset<kControllerNumbers>, midi::kChannels> movedOwn_;
    std::atomic<Metronome*> metronome_{nullptr};
    std::atomic<double> inputDelay_{0.0};
    double bend_ = 0.0; ///< In cents.
    Glide glide_;
    std::optional<double> time_; ///< Empty while it is `getTime`.
    int softPedals_ = 0;         ///< How many are down.
};

} // namespace velmora
