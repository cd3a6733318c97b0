// How far major thirds of General MIDI programs are from the temperament, before and after the
// correction of the bank's own tuning.
//
//     bench_calibration BANK.sf2 PROGRAM…

#include "app/tuningCorrections.h"
#include "audio/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace velmora {

namespace {

constexpr std::size_t kRate = 48000;
constexpr int kLowest = 48, kHighest = 84;

/// Prints how far the thirds upwards from each key are from those of equal temperament.
void printErrors(const char* text, MIDIInstrument& instrument)
{
    std::map<int, double> offCents;
    for (int key = kLowest; key <= kHighest; ++key) {
        const double expected = equal.getPitch(static_cast<unsigned long>(key)) / 2.0;
        instrument.play(key, 0.7F);
        rendered(*instrument.source(), kRate / 4);
        const Stereo sound = rendered(*instrument.source(), kRate);
        std::vector<float> both;
        for (std::size_t i = 0; i < kRate; ++i)
            both.push_back(sound.left[i] + sound.right[i]);
        offCents[key] = cents(measuredHertz(both, kRate, expected), expected);
        instrument.silence();
        rendered(*instrument.source(), kRate / 2);
    }
    std::vector<double> errors;
    for (int key = kLowest; key + 4 <= kHighest; ++key)
        errors.push_back(std::fabs(offCents[key + 4] - offCents[key]));
    std::ranges::sort(errors);
    std::printf("  %s: median %.2f, p90 %.2f, worst %.2f cents\n", text, errors[errors.size() / 2],
                errors[errors.size() * 9 / 10], errors.back());
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
        std::printf("%s, program %s\n", bank.filename().c_str(), words[i]);
        printErrors("before", instrument);
        correctTuning(instrument, bank);
        printErrors("after ", instrument);
    }
}
