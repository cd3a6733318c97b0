#include "tuning/TransposedTemperament.h"

#include "tuning/meantoneGamut.h"

#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr int kA = 69;
constexpr double kEqualA = 440.0;

/// Pitches are counted an octave higher than usual: see docs/decisions.md, 1.
constexpr double kOctaveAbove = 2.0;

double factorOf(const Temperament& temperament, const Transposition& transposition)
{
    const double factor = std::exp2(transposition.root / 12.0);
    if (!transposition.a)
        return factor;
    if (!temperament.repeatsEveryOctave())
        return factor * *transposition.a / kEqualA;
    return kOctaveAbove * *transposition.a / temperament.pitchAt(kA - transposition.root);
}

} // namespace

TransposedTemperament::TransposedTemperament(std::unique_ptr<Temperament> temperament,
                                             const Transposition& transposition)
    : inner_(std::move(temperament)), transposition_(transposition),
      factor_(factorOf(*inner_, transposition))
{
    setBaseFrequency(inner_->baseFrequency() * factor_);
}

std::unique_ptr<Temperament> TransposedTemperament::fresh() const
{
    return std::make_unique<TransposedTemperament>(inner_->fresh(), transposition_);
}

unsigned char TransposedTemperament::innerKey(unsigned long key) const
{
    return static_cast<unsigned char>(static_cast<int>(key) + (12 - transposition_.root) % 12);
}

const Tuning& TransposedTemperament::getTuning(unsigned long key) const
{
    return inner_->getTuning(innerKey(key));
}

double TransposedTemperament::pitchAt(int key) const
{
    return inner_->pitchAt(key - transposition_.root) * factor_;
}

std::optional<int> TransposedTemperament::place(unsigned long key) const
{
    const auto place = inner_->place(innerKey(key));
    if (!place)
        return std::nullopt;
    return *place + meantone::kHomePlaces[static_cast<std::size_t>(transposition_.root)];
}

std::optional<double> TransposedTemperament::centre() const
{
    const auto centre = inner_->centre();
    if (!centre)
        return std::nullopt;
    return *centre + meantone::kHomePlaces[static_cast<std::size_t>(transposition_.root)];
}

void TransposedTemperament::setup(Tunable& instrument, unsigned char key, float velocity)
{
    instrument_ = &instrument;
    inner_->setup(*this, innerKey(key), velocity);
}

void TransposedTemperament::isomorph(Tunable& instrument, int n)
{
    instrument_ = &instrument;
    // Three numbers belong to each key.
    inner_->isomorph(*this, n + 3 * ((12 - transposition_.root) % 12));
}

void TransposedTemperament::play(int key, float velocity)
{
    instrument_->play(key - (12 - transposition_.root) % 12, velocity);
}

void TransposedTemperament::tune(const Temperament& /*inner*/, int lo, int hi)
{
    instrument_->tune(*this, lo, hi);
}

} // namespace velmora
