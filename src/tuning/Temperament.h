#pragma once

#include "tuning/Tuning.h"

#include <memory>
#include <vector>

namespace velmora {

class Tunable;

/// The pitch classes of the keyboard and the frequency they start from; turns a MIDI key into
/// hertz.
class Temperament {
public:
    /// No tunings yet; pitch class 0 at middle C when A is 440 Hz.
    Temperament() = default;
    Temperament(Temperament&&) = default;
    Temperament& operator=(Temperament&&) = default;
    virtual ~Temperament() = default;

    /// Twelve equal semitones.
    static Temperament Equal();

    /// Quarter-comma meantone: pure thirds C–E–G♯, fifths a quarter of the syntonic comma narrow.
    static Temperament Meantone();

    /// The same temperament as it is before any key is struck.
    virtual std::unique_ptr<Temperament> fresh() const;

    /// The tuning of a MIDI key's pitch class.
    virtual const Tuning& getTuning(unsigned long key) const;

    /// Called before `key` is played on the instrument: a temperament that adapts retunes it here.
    virtual void setup(Tunable& instrument, unsigned char key, float velocity);

    /// Gives a pitch class another spelling and plays it; does nothing where there is only one.
    virtual void isomorph(Tunable& instrument, int n);

    /// The key that `isomorph` plays for a number from -1 up. Three numbers share a key.
    static int isomorphKey(int n) { return 48 + (n + 1) / 3; }

    /// Called 60 times a second with the factor by which the influence of struck keys decays.
    virtual void fade(double factor);

    /// Frequency in hertz of MIDI key 0…127. Key 48 of pitch class 0 sounds at the base frequency.
    double getPitch(unsigned long key) const;

    double baseFrequency() const { return baseFrequency_; }
    void setBaseFrequency(double hertz) { baseFrequency_ = hertz; }

    /// Adds the next pitch class; the first is C.
    void append(std::unique_ptr<Tuning> tuning);

protected:
    /// Every pitch of the gamut, in order: twelve pitch classes unless a temperament offers several
    /// spellings of them.
    const std::vector<std::shared_ptr<const Tuning>>& tunings() const { return tunings_; }

private:
    std::vector<std::shared_ptr<const Tuning>> tunings_; ///< Shared with what `fresh` gave.
    double baseFrequency_ = 261.6255653006;
};

/// The reference temperament: every sample's root pitch is given in it.
extern const Temperament equal;

} // namespace velmora
