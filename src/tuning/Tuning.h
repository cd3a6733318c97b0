#pragma once

namespace velmora {

/// Where one pitch class lies above the tonic.
class Tuning {
public:
    virtual ~Tuning() = default;

    /// Hertz in the given octave, where the tonic of octave 0 sounds at `base` hertz.
    virtual double tune(double base, int octave) const = 0;

    /// Cents above the tonic; 0 for a pitch that has no relative measure.
    virtual double cent() const = 0;

    /// Frequency ratio to the tonic; 0 for a pitch that has no relative measure.
    virtual double ratio() const = 0;
};

/// A pitch class given in cents.
class Cent : public Tuning {
public:
    explicit Cent(double cents) : cents_(cents) {}

    double tune(double base, int octave) const override;
    double cent() const override;
    double ratio() const override;

private:
    double cents_;
};

/// A pitch class given as a frequency ratio above zero.
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

/// A pitch class given in hertz at octave 0, whatever the base frequency is. It has no relative
/// measure: an instrument that retunes by cents plays it as 0 cents.
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
