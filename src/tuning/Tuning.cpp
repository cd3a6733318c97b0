#include "tuning/Tuning.h"

#include <cmath>

namespace velmora {

double Cent::tune(double base, int octave) const
{
    return base * std::exp2(cents_ / 1200.0 + octave);
}

double Cent::cent() const
{
    return cents_;
}

double Cent::ratio() const
{
    return std::exp2(cents_ / 1200.0);
}

double Ratio::tune(double base, int octave) const
{
    return std::ldexp(base, octave) * numerator_ / denominator_;
}

double Ratio::cent() const
{
    return 1200.0 * std::log2(ratio());
}

double Ratio::ratio() const
{
    return numerator_ / denominator_;
}

double Freq::tune(double /*base*/, int octave) const
{
    return std::ldexp(frequency_, octave);
}

// An absolute pitch has no relative measure: see docs/decisions.md, 9.
double Freq::cent() const
{
    return 0.0;
}

double Freq::ratio() const
{
    return 0.0;
}

} // namespace velmora
