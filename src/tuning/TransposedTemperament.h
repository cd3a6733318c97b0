#pragma once

#include "tuning/Temperament.h"
#include "tuning/Tunable.h"

#include <memory>
#include <optional>

namespace velmora {

/// Where a temperament stands: on which root and at which pitch.
struct Transposition {
    /// The lowest and the highest pitch of A.
    static constexpr double kLowestA = 380.0, kHighestA = 480.0;

    int root = 0; ///< The pitch class, 0…11, on which the temperament stands; C is 0.

    /// The frequency of A above middle C in hertz. If empty, C keeps the pitch that the temperament
    /// gives it, or that of equal temperament relative to it, on another root.
    std::optional<double> a;

    bool operator==(const Transposition&) const = default;
};

/// Another temperament, transposed to a root and a pitch.
///
/// On root D, key D sounds like C of the temperament, a whole tone of equal temperament higher. If
/// the pitch of A is given, everything is shifted so that A has it at the start; temperaments that
/// do not repeat every octave, whose key A may be any note, are shifted as far as equal temperament
/// would be, from 440 Hz.
class TransposedTemperament : public Temperament, private Tunable {
public:
    /// Takes a temperament in its initial state.
    TransposedTemperament(std::unique_ptr<Temperament> temperament,
                          const Transposition& transposition);

    std::unique_ptr<Temperament> fresh() const override;
    bool repeatsEveryOctave() const override { return inner_->repeatsEveryOctave(); }
    double period() const override { return inner_->period(); }
    const Tuning& getTuning(unsigned long key) const override;
    double pitchAt(int key) const override;
    bool isMapped(int key) const override { return inner_->isMapped(key - transposition_.root); }
    std::optional<int> place(unsigned long key) const override;
    std::optional<double> centre() const override;
    double drift() const override { return inner_->drift(); }
    void setTime(double seconds) override { inner_->setTime(seconds); }
    void setup(Tunable& instrument, unsigned char key, float velocity) override;
    void release(unsigned char key) override { inner_->release(innerKey(key)); }
    void isomorph(Tunable& instrument, int n) override;
    void fade(double factor) override { inner_->fade(factor); }

    const Transposition& transposition() const { return transposition_; }

    /// The temperament that is transposed.
    const Temperament& inner() const { return *inner_; }

private:
    // Called by the inner temperament, which knows only its own keys.
    void play(int key, float velocity) override;
    void tune(const Temperament& temperament, int lo, int hi) override;

    /// Returns a key of the same pitch class for the inner temperament, 0…139.
    unsigned char innerKey(unsigned long key) const;

    std::unique_ptr<Temperament> inner_;
    Transposition transposition_;
    double factor_;                 ///< By which the inner pitches are multiplied.
    Tunable* instrument_ = nullptr; ///< That of the current call.
};

} // namespace velmora
