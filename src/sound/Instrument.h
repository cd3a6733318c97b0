#pragma once

#include "audio/Glide.h"
#include "audio/Program.h"
#include "sound/PartSound.h"
#include "tuning/Tunable.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace velmora {

class AudioSource;

/// A sound source that plays MIDI keys 0…127 at the pitches of a temperament. Not thread-safe: the
/// player's lock guards every call.
class Instrument : public Tunable {
public:
    /// True if the instrument offers a choice of General MIDI programs.
    virtual bool hasSubMenu() const { return false; }

    /// Returns the volume of a stop, numbered from 0; 0 if there is no such stop.
    virtual float getVolume(std::size_t stop) const = 0;

    /// Sets the volume of a stop, numbered from 0. Does nothing if there is no such stop.
    virtual void setVolume(std::size_t stop, float volume) = 0;

    /// The number of stops, each of which has a volume of its own.
    virtual std::size_t numStops() const = 0;

    /// The name of a stop; empty if it has none.
    virtual std::string stopName(std::size_t /*stop*/) const { return {}; }

    /// Releases a key. Does nothing if the key does not sound.
    virtual void stop(int key) = 0;

    /// The number of divisions, each of which has keys of its own: the manuals and the pedal of an
    /// organ. Instruments without manuals have one.
    virtual std::size_t numDivisions() const { return 1; }

    /// The division that `play` and `stop` play.
    virtual std::size_t mainDivision() const { return 0; }

    /// Like `play` and `stop`, for a division, numbered from 0.
    virtual void playOn(std::size_t /*division*/, int key, float velocity) { play(key, velocity); }
    virtual void stopOn(std::size_t /*division*/, int key) { stop(key); }

    /// Lets a part, 1…kParts − 1, sound as it shall; `playOn` and `stopOn` then play it as if it
    /// were a division. Returns false if the instrument cannot play several sounds at a time.
    virtual bool setPart(std::size_t /*part*/, const PartSound& /*sound*/) { return false; }

    /// Announces presets that parts will be given later.
    virtual void expectPresets(std::span<const PartSound::Preset> /*presets*/) {}

    /// Moves a controller of a part, or its `midi::kPitchWheel` or `midi::kPressure`, if the
    /// instrument can play several sounds at a time.
    virtual void controlPart(std::size_t /*part*/, int /*number*/, int /*value*/) {}

    /// Sets when the operations that follow are due, in the seconds of `getTime`; 0 for at once.
    virtual void setDue(double /*time*/) {}

    /// Shifts every key by `cents`, including those that sound.
    virtual void bend(double /*cents*/) {}

    /// Chooses how notes that sound take over the pitches that follow. At first they jump there.
    virtual void setGlide(const Glide& /*glide*/) {}

    /// Makes the notes that follow softer, as the soft pedal does, or normal again.
    virtual void setSoft(bool /*soft*/) {}

    /// The instrument's sound, for an engine to play; null if it has none.
    virtual AudioSource* source() { return nullptr; }

    /// Ends every sound at once.
    virtual void silence() = 0;

    /// Fades released keys by one step. Must be called 60 times a second.
    virtual void fade(double /*factor*/) {}

    /// Selects a program by its number, 0…127: a General MIDI program, or that of a bank. Does
    /// nothing if there is no such program.
    virtual void setInstrument(std::uint8_t /*program*/) {}

    /// The programs to choose from; empty if there is no choice. They never change.
    virtual std::span<const Program> programs() const { return {}; }

    /// Selects one of `programs()` by its position. Does nothing if there is no such program.
    virtual void setProgram(std::size_t /*position*/) {}

    /// The position of the selected program.
    virtual std::size_t program() const { return 0; }

    /// True if a key sounds or dies away.
    virtual bool isSounding() const { return false; }

    /// The sample memory in use, in bytes.
    std::int64_t usage = 0;
};

} // namespace velmora
