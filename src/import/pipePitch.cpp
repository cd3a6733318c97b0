#include "import/pipePitch.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Semitones by which a note may differ from the expected one.
constexpr double kTolerance = 0.5;

/// So many notes must agree that an organ has another pitch.
constexpr std::size_t kWitnesses = 5;

/// Semitones by which a pipe sounds above an 8′ pipe.
double aboveKey(double harmonicNumber)
{
    return 12.0 * std::log2(harmonicNumber / 8.0);
}

double middleOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// True if at least three quarters of the values lie around `centre`.
bool agree(const std::vector<double>& values, double centre)
{
    const auto near = std::ranges::count_if(
        values, [centre](double value) { return std::abs(value - centre) <= kTolerance; });
    return 4 * static_cast<std::size_t>(near) >= 3 * values.size();
}

} // namespace

double hertzOfNote(double note)
{
    return 440.0 * std::exp2((note - 69.0) / 12.0);
}

double expectedNote(const PipeOrgan::Pipe& pipe)
{
    if (pipe.hertz)
        return 69.0 + 12.0 * std::log2(*pipe.hertz / 440.0);
    return pipe.key + aboveKey(pipe.harmonicNumber) - pipe.retuning / 100.0;
}

RankPitch::RankPitch(std::span<const RecordedPitch> recordings)
{
    for (const bool isForKeys : {false, true}) {
        isForKeys_ = isForKeys;
        std::vector<double> differences;
        for (const RecordedPitch& recording : recordings) {
            if (recording.note)
                differences.push_back(written(recording) - recording.expected);
        }
        if (differences.empty())
            return;
        const double centre = std::round(middleOf(differences));
        const bool isKnown = centre == 0.0 || differences.size() >= kWitnesses;
        if (isKnown && std::abs(centre) <= kFarthestOffset && agree(differences, centre)) {
            offset_ = centre;
            return;
        }
    }
    isForKeys_ = false;
}

double RankPitch::written(const RecordedPitch& recording) const
{
    return *recording.note + (isForKeys_ ? aboveKey(recording.harmonicNumber) : 0.0);
}

double RankPitch::noteOf(const RecordedPitch& recording, std::span<const double> others) const
{
    const auto fits = [&](double expected) {
        return std::abs(written(recording) - expected - offset_) <= kTolerance;
    };
    if (recording.note && (fits(recording.expected) || std::ranges::any_of(others, fits)))
        return written(recording);
    return recording.expected + offset_;
}

} // namespace velmora
