#pragma once

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceHost.h"
#include "sound/Instrument.h"
#include "tuning/Temperament.h"

#include <bitset>
#include <chrono>
#include <mutex>
#include <vector>

namespace velmora {

/// The interval at which released keys and the spellings of a temperament fade: 60 times a second.
constexpr std::chrono::nanoseconds kFadeInterval{16'666'000};

/// The factor by which each fade multiplies them.
constexpr double kFadeFactor = 0.9;

/// Owns what sounds: which instrument and temperament are current, which instrument sounds each
/// key, the keys of live input, and the lock that guards them all. Every function may be called on
/// any thread; none of them allocates while keys are played.
///
/// The instruments and temperaments themselves are borrowed. An instrument must exist until it is
/// removed or the player is destroyed; a temperament, until another one is current or the player is
/// destroyed.
class Player : public SequenceHost {
public:
    /// Makes an instrument the current one and tunes it. Keys that sound on the previous one go on
    /// until they are released.
    void setInstrument(Instrument& instrument);

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

    /// Marks a live key as pressed and sounds it at once. Keys outside 0…127 are ignored, and the
    /// velocity is clamped to 0…1.
    void keyOn(int key, float velocity);

    /// Marks a live key as released and stops it on every instrument that sounds it.
    void keyOff(int key);

    void play(int key, float velocity) override;
    void stop(int key) override;
    void isomorph(int n) override;
    LiveKeys& liveKeys() override { return liveKeys_; }

    /// Ends every sound of every instrument at once and releases every live key.
    void silence();

    /// Fades released keys and the spellings of the temperament by one step. Call this 60 times a
    /// second.
    void fade();

private:
    /// An instrument and the keys that were started and not yet stopped on it.
    struct Sounding {
        Instrument* instrument;
        std::bitset<kKeys> keys;
    };

    // Called with the lock held:
    void start(int key, float velocity);
    void stopEverywhere(int key);
    void markCurrent(int key);

    mutable std::mutex mutex_;
    Instrument* instrument_ = nullptr;
    Temperament* temperament_ = nullptr;
    std::vector<Sounding> instruments_; ///< All that have been current and were not removed.
    LiveKeys liveKeys_;
};

} // namespace velmora
