// Renders the General MIDI instrument on its real synthesizer and measures the pitch.

#include "audio/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/TuningDocument.h"

#include <gtest/gtest.h>

namespace velmora {

class GeneralMidiPitch : public testing::TestWithParam<int> {};

TEST_P(GeneralMidiPitch, LiesWithinATwentiethOfACentOfTheTemperament)
{
    constexpr std::size_t kRate = 48000;
    auto device = std::make_unique<Synthesizer>(kRate, std::vector{kBank});
    Synthesizer& synthesizer = *device;
    MIDIInstrument instrument(std::move(device));
    instrument.setInstrument(static_cast<std::uint8_t>(GetParam()));
    const bool beats =
        GetParam() == 19; // has two ranks that beat, so only notes of the same age can be compared

    const auto meantone = TuningDocument::makeBuiltin("Quartercomma Meantone");
    TuningDocument file;
    ASSERT_TRUE(file.read(VELMORA_EXAMPLES "/kirnberger-3.scl", TuningFormat::Scale));
    DynamicTemperament dynamic;
    for (int n = 2; n < 36; n += 6) // the upper neighbour of every second pitch class
        dynamic.isomorph(instrument, n);
    for (int key = 0; key < 128; ++key)
        instrument.stop(key);
    Temperament low;
    for (int i = 0; i < 12; ++i)
        low.append(std::make_unique<Cent>(100.0 * i - 150.0));

    for (int key = 60; key < 72; ++key) {
        const auto strike = [&](const Temperament& temperament) {
            instrument.stop(key);
            instrument.tune(temperament, 0, 127);
            rendered(synthesizer, kRate / 2);
            instrument.play(key, 0.6F);
            rendered(synthesizer, kRate / 2);
        };
        const auto hertz = [&](double deviation) {
            // Key 60 sounds as middle C, an octave below `getPitch`: see docs/decisions.md, 1.
            return measuredHertz(rendered(synthesizer, kRate).left, kRate,
                                 equal.getPitch(key) / 2.0 * std::exp2(deviation / 1200.0));
        };
        strike(equal);
        const double reference = hertz(0.0);
        for (const Temperament* temperament : std::initializer_list<const Temperament*>{
                 &meantone->temperament(), &file.temperament(), &dynamic, &low}) {
            if (key % 4 != 2 && temperament != &meantone->temperament())
                continue;
            // C is never bent.
            const double expected =
                key == 60 ? 0.0 : temperament->getTuning(key % 12).cent() - 100.0 * (key % 12);
            const auto error = [&] { return cents(hertz(expected), reference) - expected; };
            instrument.tune(*temperament, 0, 127);
            rendered(synthesizer, kRate / 20);
            EXPECT_TRUE(beats || std::fabs(error()) < 0.05) << "sounding key " << key;
            if (beats || key % 4 == 2) {
                strike(*temperament);
                EXPECT_NEAR(error(), 0.0, 0.05) << "struck key " << key;
            }
        }
        instrument.stop(key);
    }
}

INSTANTIATE_TEST_SUITE_P(Programs, GeneralMidiPitch, testing::Values(kSteadyProgram, 16, 19));

} // namespace velmora
