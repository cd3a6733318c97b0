#pragma once

#include "tuning/Tunable.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace velmora {

/// A sound source that plays MIDI keys 0…127 at the pitches of a temperament. Not safe for use from
/// several threads at once: the application's lock guards it.
class Instrument : public Tunable {
public:
    /// Whether it offers a choice of General MIDI programs.
    virtual bool hasSubMenu() const { return false; }

    /// Gain of a stop, numbered from 0; 0 for one that does not exist.
    virtual float getVolume(std::size_t stop) const = 0;

    /// Sets the gain of a stop, numbered from 0; one that does not exist is ignored.
    virtual void setVolume(std::size_t stop, float volume) = 0;

    /// How many stops have a volume of their own.
    virtual std::size_t numStops() const = 0;

    /// What a stop is called; empty where it has no name.
    virtual std::string stopName(std::size_t /*stop*/) const { return {}; }

    /// Releases a key. One that does not sound is ignored.
    virtual void stop(int key) = 0;

    /// Ends every sound at once.
    virtual void silence() = 0;

    /// One step, 60 in a second, in the decay of released keys.
    virtual void fade(double /*factor*/) {}

    /// Selects a General MIDI program, 0…127.
    virtual void setInstrument(std::uint8_t /*program*/) {}

    /// Bytes of sample memory held.
    std::int64_t usage = 0;
};

} // namespace velmora
