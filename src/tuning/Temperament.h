#pragma once

#include "tuning/Tuning.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

class Tunable;

/// The pitch of each MIDI key. Most temperaments have a tuning for each pitch class and a base
/// frequency, which together determine all pitches; others give each key a pitch of its own.
class Temperament {
public:
    /// Creates a temperament without tunings, based on middle C for A at 440 Hz.
    Temperament() = default;
    Temperament(Temperament&&) = default;
    Temperament& operator=(Temperament&&) = default;
    virtual ~Temperament() = default;

    /// Twelve-tone equal temperament.
    static Temperament Equal();

    /// Quarter-comma meantone: pure thirds C–E–G♯, fifths a quarter of the syntonic comma narrow.
    static Temperament Meantone();

    /// Returns a copy in its initial state, before any key has been struck.
    virtual std::unique_ptr<Temperament> fresh() const;

    /// True if the pitches repeat in every octave of twelve keys. Only then does `getTuning`
    /// describe them.
    virtual bool repeatsEveryOctave() const { return true; }

    /// The distance in cents after which the notes repeat; an octave if they never do.
    virtual double period() const { return 1200.0; }

    /// Returns the current tuning of a MIDI key's pitch class, relative to the root.
    virtual const Tuning& getTuning(unsigned long key) const;

    /// Sets the time of the calls that follow, in seconds; only differences count.
    virtual void setTime(double /*seconds*/) {}

    /// Prepares for a key, 0…139, that is about to be played. An adaptive temperament retunes the
    /// instrument here. Keys above 127 come from transposing.
    virtual void setup(Tunable& instrument, unsigned char key, float velocity);

    /// Notes that a key that was prepared no longer sounds.
    virtual void release(unsigned char /*key*/) {}

    /// Forces a spelling of a pitch class and plays it. DynamicTemperament defines the meaning of
    /// `n`; other temperaments do nothing.
    virtual void isomorph(Tunable& instrument, int n);

    /// Returns the key that `isomorph` plays for `n`, which is at least −1. Three consecutive
    /// numbers share a key.
    static int isomorphKey(int n) { return 48 + (n + 1) / 3; }

    /// Multiplies the influence of the notes played earlier by `factor`. Called 60 times a second.
    virtual void fade(double factor);

    /// Returns the frequency in hertz of MIDI key 0…127. In a temperament with a tuning for each
    /// pitch class, key 48 has the base frequency if pitch class 0 is at 0 cents. That is an octave
    /// higher than usual, but the root pitches of samples are counted in the same way, so the
    /// octave cancels out.
    double getPitch(unsigned long key) const { return pitchAt(static_cast<int>(key)); }

    /// Returns the frequency in hertz of a key that may lie up to twelve below 0, so that the
    /// temperament can be transposed.
    virtual double pitchAt(int key) const;

    /// Returns false for a key, as `pitchAt` takes it, that plays no note of the temperament.
    virtual bool isMapped(int /*key*/) const { return true; }

    /// Returns the place on the chain of fifths of the spelling that a key has: 0 for C, 1 for G,
    /// −1 for F. Empty if the temperament does not spell.
    virtual std::optional<int> place(unsigned long /*key*/) const { return std::nullopt; }

    /// The centre on the chain of fifths of what has sounded, if the temperament follows it.
    virtual std::optional<double> centre() const { return std::nullopt; }

    /// How far the temperament has drifted from where it began, in cents.
    virtual double drift() const { return 0.0; }

    double baseFrequency() const { return baseFrequency_; }
    void setBaseFrequency(double hertz) { baseFrequency_ = hertz; }

    /// Appends the tuning of the next pitch class; the first is C.
    void append(std::unique_ptr<Tuning> tuning);

protected:
    /// All pitches, in order: one per pitch class, or one per spelling.
    const std::vector<std::shared_ptr<const Tuning>>& tunings() const { return tunings_; }

private:
    std::vector<std::shared_ptr<const Tuning>> tunings_; ///< Shared with the copies.
    double baseFrequency_ = 261.6255653006;
};

/// The reference temperament, in which the root pitches of all samples are given.
extern const Temperament equal;

} // namespace velmora
