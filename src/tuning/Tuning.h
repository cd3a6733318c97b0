#pragma once

namespace velmora {

/// The pitch of one pitch class, usually relative to the tonic.
class Tuning {
public:
    virtual ~Tuning() = default;

    /// Returns the frequency in hertz in the given octave. The tonic of octave 0 is at `base`
    /// hertz.
    virtual double tune(double base, int octave) const = 0;

    /// Returns the distance above the tonic in cents; 0 for an absolute pitch.
    virtual double cent() const = 0;

    /// Returns the frequency ratio to the tonic; 0 for an absolute pitch.
    virtual double ratio() const = 0;
};

/// A pitch class given in cents above the tonic.
class Cent : public Tuning {
public:
    explicit Cent(double cents) : cents_(cents) {}

    double tune(double base, int octave) const override;
    double cent() const override;
    double ratio() const override;

private:
    double cents_;
};

/// A pitch class given as a frequency ratio to the tonic, greater than zero.
class Ratio : public Tuning {
public:
    Ratio(double numerator, double denominator) : numerator_(numerator), denominator_(denominator)
    {
    }

    double numerator() const { return numerator_; }
    double denominator() const { return denominator_; }

    double tune(double base, int octave) const override;
    double cent() const override;
    double ratio() const override;

private:
    double numerator_;
    double denominator_;
};

/// A pitch class given as an absolute frequency: hertz in octave 0, whatever the base frequency. It
/// has no relative measure, so an instrument that retunes by cents plays it at 0 cents.
class Freq : public Tuning {
public:
    explicit Freq(double hertz) : frequency_(hertz) {}

    double tune(double base, int octave) const override;
    double cent() const override;
    double ratio() const override;

private:
    double frequency_;
};

} // namespace velmora
