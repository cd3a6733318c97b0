#include "tuning/historicalTemperaments.h"

#include "tuning/Tuning.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

using Fifths = HistoricalTemperament::Fifths;
using Ratios = HistoricalTemperament::Ratios;
using Division = HistoricalTemperament::Division;

constexpr std::size_t kClasses = 12;

const double kPureFifth = 1200.0 * std::log2(3.0 / 2.0);

/// What twelve pure fifths exceed seven octaves by, in cents.
const double kPythagoreanComma = 12.0 * kPureFifth - 8400.0;

/// What four pure fifths exceed two octaves and a pure third by, in cents.
const double kSyntonicComma = 1200.0 * std::log2(81.0 / 80.0);

/// Returns how many cents each fifth is narrower than a pure one, from C–G to F–C.
std::array<double, kClasses> narrowings(const Fifths& fifths)
{
    const double unit =
        (fifths.comma == Fifths::Comma::Syntonic ? kSyntonicComma : kPythagoreanComma) /
        fifths.parts;
    double rest = kPythagoreanComma;
    int shares = 0;
    for (const int narrowed : fifths.narrowed) {
        if (narrowed == Fifths::kRest)
            ++shares;
        else
            rest -= unit * narrowed;
    }
    std::array<double, kClasses> result{};
    std::ranges::transform(fifths.narrowed, result.begin(), [&](int narrowed) {
        return narrowed == Fifths::kRest ? rest / shares : unit * narrowed;
    });
    return result;
}

/// Returns the pitches above C, in cents, of which each is the next fifth in the circle from C.
std::array<double, kClasses> centsOf(const Fifths& fifths)
{
    const auto narrowed = narrowings(fifths);
    std::array<double, kClasses> cents{};
    double sum = 0.0;
    for (std::size_t i = 1; i < kClasses; ++i) {
        sum += kPureFifth - narrowed[i - 1];
        cents[7 * i % kClasses] = std::fmod(sum, 1200.0);
    }
    return cents;
}

std::array<double, kClasses> centsOf(const Division& division)
{
    constexpr int kEFlat = -3, kGSharp = 8; // places on the chain of fifths from C
    const double step = 1200.0 / division.steps;
    const double fifth = step * std::round(kPureFifth / step);
    std::array<double, kClasses> cents{};
    for (int place = kEFlat; place <= kGSharp; ++place) {
        const double above = std::fmod(fifth * place + 3600.0, 1200.0);
        cents[static_cast<std::size_t>(7 * place + 84) % kClasses] = above;
    }
    return cents;
}

} // namespace

Temperament HistoricalTemperament::make() const
{
    Temperament temperament;
    temperament.append(std::make_unique<Cent>(0.0));
    const auto appendCents = [&](const std::array<double, kClasses>& cents) {
        for (std::size_t i = 1; i < kClasses; ++i)
            temperament.append(std::make_unique<Cent>(cents[i]));
    };
    if (const auto* ratios = std::get_if<Ratios>(&definition))
        for (const auto& [numerator, denominator] : ratios->pitches)
            temperament.append(std::make_unique<Ratio>(numerator, denominator));
    else if (const auto* fifths = std::get_if<Fifths>(&definition))
        appendCents(centsOf(*fifths));
    else
        appendCents(centsOf(std::get<Division>(definition)));
    return temperament;
}

const HistoricalTemperament* findHistoricalTemperament(std::string_view name)
{
    const auto all = historicalTemperaments();
    const auto found = std::ranges::find(all, name, &HistoricalTemperament::name);
    return found == all.end() ? nullptr : &*found;
}

} // namespace velmora
