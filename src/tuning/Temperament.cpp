#include "tuning/Temperament.h"

namespace velmora {

const Temperament equal = Temperament::Equal();

Temperament Temperament::Equal()
{
    Temperament temperament;
    for (int i = 0; i < 12; ++i)
        temperament.append(std::make_unique<Cent>(100.0 * i));
    return temperament;
}

Temperament Temperament::Meantone()
{
    Temperament temperament;
    const auto cents = [&](double value) { temperament.append(std::make_unique<Cent>(value)); };
    const auto ratio = [&](double numerator, double denominator) {
        temperament.append(std::make_unique<Ratio>(numerator, denominator));
    };
    // Ratios and rounded cents are mixed: see docs/decisions.md, 2.
    cents(0);
    cents(76.049);
    cents(193.15686);
    cents(310.26471);
    ratio(5, 4);
    cents(503.42157);
    cents(579.47057);
    cents(696.57843);
    ratio(25, 16);
    cents(889.73529);
    cents(1006.84314);
    cents(1082.89214);
    return temperament;
}

std::unique_ptr<Temperament> Temperament::fresh() const
{
    auto copy = std::make_unique<Temperament>();
    copy->tunings_ = tunings_;
    copy->baseFrequency_ = baseFrequency_;
    return copy;
}

const Tuning& Temperament::getTuning(unsigned long key) const
{
    return *tunings_[key % 12];
}

void Temperament::setup(Tunable& /*instrument*/, unsigned char /*key*/, float /*velocity*/) {}

void Temperament::isomorph(Tunable& /*instrument*/, int /*n*/) {}

void Temperament::fade(double /*factor*/) {}

double Temperament::pitchAt(int key) const
{
    const int octave = key < 0 ? -1 : key / 12;
    const auto pitchClass = static_cast<unsigned>(key - 12 * octave);
    // An octave higher than usual: see docs/decisions.md, 1.
    return getTuning(pitchClass).tune(baseFrequency_, octave - 4);
}

void Temperament::append(std::unique_ptr<Tuning> tuning)
{
    tunings_.push_back(std::move(tuning));
}

} // namespace velmora
