#include "tuning/TuningShape.h"

#include "tuning/ScaleTemperament.h"

#include <cmath>

namespace velmora {

namespace {

using CommaFifths = HistoricalTemperament::Fifths;

constexpr unsigned kShapeNotes = 12;

Scale scaleOfOctave(const std::array<double, kShapeNotes>& cents)
{
    Scale scale;
    for (unsigned i = 1; i < kShapeNotes; ++i)
        scale.pitches.emplace_back(Cent(cents[i]));
    scale.pitches.emplace_back(Ratio(2, 1));
    return scale;
}

/// Returns how many cents each fifth is narrower than a pure one, from C–G to F–C.
std::array<double, kShapeNotes> narrowingsOf(const Scale& scale)
{
    const double pure = 1200.0 * std::log2(3.0 / 2.0);
    std::array<double, kShapeNotes> narrowings{};
    for (int i = 0; i < static_cast<int>(kShapeNotes); ++i) {
        const int low = 7 * i % 12;
        narrowings[static_cast<std::size_t>(i)] = pure - (scale.cents(low + 7) - scale.cents(low));
    }
    return narrowings;
}

double commaOf(CommaFifths::Comma comma)
{
    return 1200.0 * (comma == CommaFifths::Comma::Syntonic ? std::log2(81.0 / 80.0)
                                                           : 12.0 * std::log2(1.5) - 7.0);
}

} // namespace

std::optional<TuningShape> shapeOf(const Temperament& temperament)
{
    constexpr int kBaseKey = 48;
    if (const auto* scale = dynamic_cast<const ScaleTemperament*>(&temperament))
        return TuningShape{scale->scale(), scale->mapping()};
    if (!temperament.repeatsEveryOctave() || temperament.place(0))
        return std::nullopt;
    const double base = temperament.pitchAt(kBaseKey);
    std::array<double, kShapeNotes> cents{};
    for (unsigned i = 0; i < kShapeNotes; ++i)
        cents[i] = 1200.0 * std::log2(temperament.pitchAt(kBaseKey + static_cast<int>(i)) / base);
    TuningShape shape{scaleOfOctave(cents), {}};
    // Temperaments count their pitches from an octave higher.
    shape.mapping.referenceHertz = base;
    return shape;
}

std::optional<CommaFifths> fifthsOf(const Scale& scale, std::size_t rest)
{
    constexpr int kMostParts = 24;
    constexpr double kTolerance = 0.05;
    const auto narrowings = narrowingsOf(scale);
    for (int parts = 1; parts <= kMostParts; ++parts) {
        for (const auto comma : {CommaFifths::Comma::Syntonic, CommaFifths::Comma::Pythagorean}) {
            CommaFifths fifths{comma, parts, {}};
            const double unit = commaOf(comma) / parts;
            bool fits = true;
            for (std::size_t i = 0; i < kShapeNotes; ++i) {
                const double count = std::round(narrowings[i] / unit);
                fifths.narrowed[i] = i == rest ? CommaFifths::kRest : static_cast<int>(count);
                fits = fits && (i == rest || std::abs(narrowings[i] - count * unit) < kTolerance);
            }
            if (fits)
                return fifths;
        }
    }
    return std::nullopt;
}

Scale scaleOf(const CommaFifths& fifths)
{
    const Temperament temperament = HistoricalTemperament{{}, {}, {}, fifths}.make();
    std::array<double, kShapeNotes> cents{};
    for (unsigned i = 0; i < kShapeNotes; ++i)
        cents[i] = temperament.getTuning(i).cent();
    return scaleOfOctave(cents);
}

} // namespace velmora
