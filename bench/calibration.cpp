// How far major thirds of General MIDI programs are from the temperament, before and after the
// correction of the bank's own tuning.
//
//     bench_calibration BANK.sf2 PROGRAM…
//
// "By pitch" compares what an ear hears as the pitches of the two keys: the mean over a second,
// vibrato and drift included, of the frequencies of the lowest partials, each with its amplitude.
// It is taken from spectra and not from phases, as the program itself does it, and at another
// velocity. "By beats" compares the fifth partial of the lower key with the fourth of the upper
// one, whose beats tell a pure third. The partials of strings are sharp, and those of a sampled
// vibrato or a short loop disagree by a few cents, which no tuning of whole keys can mend.

#include "app/tuningCorrections.h"
#include "audio/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <numbers>
#include <vector>

namespace velmora {

namespace {

constexpr std::size_t kRate = 48000;
constexpr std::size_t kWindow = kRate / 4; // its spectra have lines 4 Hz apart
constexpr int kLowest = 48, kHighest = 84;
constexpr std::size_t kPartials = 6;

struct Partial {
    double cents = 0.0; ///< From the expected frequency.
    double amplitude = 0.0;
};

using Partials = std::array<Partial, kPartials>;

/// Returns the power of a sound at `hertz`, in windows that overlap by half.
double powerAt(double hertz, const std::vector<float>& sound)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const auto step = std::polar(1.0, -kTurn * hertz / kRate);
    double power = 0.0;
    for (std::size_t first = 0; first + kWindow <= sound.size(); first += kWindow / 2) {
        std::complex<double> place = 1.0, sum;
        for (std::size_t i = 0; i < kWindow; ++i) {
            static const auto weights = [] {
                std::vector<double> all;
                for (std::size_t k = 0; k < kWindow; ++k)
                    all.push_back(1.0 - std::cos(kTurn * static_cast<double>(k) / kWindow));
                return all;
            }();
            sum += weights[i] * static_cast<double>(sound[first + i]) * place;
            place *= step;
        }
        power += std::norm(sum);
    }
    return power;
}

/// Measures the power around a frequency, within half a semitone or four lines, and its centre.
Partial partialAt(double hertz, const std::vector<float>& sound)
{
    constexpr double kLine = static_cast<double>(kRate) / kWindow;
    const double width = std::max(4.0 * kLine, hertz * (std::exp2(0.5 / 12.0) - 1.0));
    double power = 0.0, sum = 0.0;
    for (double line = std::ceil((hertz - width) / kLine) * kLine; line <= hertz + width;
         line += kLine) {
        const double one = powerAt(line, sound);
        power += one;
        sum += one * line;
    }
    return {1200.0 * std::log2(sum / power / hertz), std::sqrt(power)};
}

Partials partialsOf(int key, MIDIInstrument& instrument)
{
    const double hertz = equal.getPitch(static_cast<unsigned long>(key)) / 2.0;
    instrument.play(key, 0.7F);
    rendered(*instrument.source(), kRate / 4);
    const Stereo sound = rendered(*instrument.source(), kRate);
    instrument.silence();
    rendered(*instrument.source(), kRate / 2);
    std::vector<float> both;
    for (std::size_t i = 0; i < kRate; ++i)
        both.push_back(sound.left[i] + sound.right[i]);
    Partials partials;
    for (std::size_t i = 0; i < kPartials; ++i)
        partials[i] = partialAt(static_cast<double>(i + 1) * hertz, both);
    return partials;
}

/// True if a partial is at most `decibels` softer than the strongest.
bool isAudible(const Partials& partials, std::size_t number, double decibels)
{
    const auto strongest = std::ranges::max(partials, {}, &Partial::amplitude);
    return partials[number].amplitude > strongest.amplitude * std::pow(10.0, -decibels / 20.0);
}

double pitchOf(const Partials& partials)
{
    double weights = 0.0, sum = 0.0;
    for (std::size_t i = 0; i < kPartials; ++i) {
        if (!isAudible(partials, i, 30.0))
            continue;
        weights += partials[i].amplitude;
        sum += partials[i].amplitude * partials[i].cents;
    }
    return sum / weights;
}

void print(const char* text, std::vector<double> errors)
{
    std::ranges::sort(errors);
    if (!errors.empty())
        std::printf("    %s: median %.2f, p90 %.2f, worst %.2f cents (%zu thirds)\n", text,
                    errors[errors.size() / 2], errors[errors.size() * 9 / 10], errors.back(),
                    errors.size());
}

/// Prints how far the thirds upwards from each key are from those of equal temperament.
void printErrors(MIDIInstrument& instrument)
{
    std::map<int, Partials> keys;
    for (int key = kLowest; key <= kHighest; ++key)
        keys[key] = partialsOf(key, instrument);
    std::vector<double> byPitch, byBeats;
    for (int key = kLowest; key + 4 <= kHighest; ++key) {
        const Partials &low = keys[key], &high = keys[key + 4];
        byPitch.push_back(std::fabs(pitchOf(high) - pitchOf(low)));
        if (isAudible(low, 4, 40.0) && isAudible(high, 3, 40.0))
            byBeats.push_back(std::fabs(high[3].cents - low[4].cents));
    }
    print("by pitch", byPitch);
    print("by beats", byBeats);
}

} // namespace

} // namespace velmora

int main(int count, char** words)
{
    using namespace velmora;
    for (int i = 2; i < count; ++i) {
        const std::filesystem::path bank = words[1];
        MIDIInstrument instrument(std::make_unique<Synthesizer>(kRate, std::vector{bank}));
        instrument.setInstrument(static_cast<std::uint8_t>(std::atoi(words[i])));
        std::printf("%s, program %s\n  before\n", bank.filename().c_str(), words[i]);
        printErrors(instrument);
        correctTuning(instrument, bank);
        std::printf("  after\n");
        printErrors(instrument);
    }
}
