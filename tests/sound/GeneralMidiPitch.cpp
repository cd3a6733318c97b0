// The General MIDI instrument as it is heard: its real synthesizer, rendered and measured.

#include "platform/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/TuningDocument.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kRate = 48000;

/// A program of two ranks that beat: only notes of the same age can be compared.
constexpr int kBeatingProgram = 19;

class GeneralMidiPitch : public testing::TestWithParam<int> {
protected:
    void strike(int key)
    {
        instrument_->play(key, 0.6F);
        rendered(*synthesizer_, kRate / 2);
    }

    void release(int key)
    {
        instrument_->stop(key);
        rendered(*synthesizer_, kRate);
    }

    void tune(const Temperament& temperament)
    {
        instrument_->tune(temperament, 0, 127);
        rendered(*synthesizer_, kRate / 20);
    }

    /// The fundamental of the next second, expected so many cents from equal temperament. Key 60
    /// sounds as middle C, an octave below its pitch by the temperament's own count.
    double hertz(int key, double from = 0.0)
    {
        return measuredHertz(rendered(*synthesizer_, kRate).left, kRate,
                             equal.getPitch(key) / 2.0 * std::exp2(from / 1200.0));
    }

    Synthesizer* synthesizer_ = new Synthesizer(kRate, {kBank});
    std::unique_ptr<MIDIInstrument> instrument_ =
        std::make_unique<MIDIInstrument>(std::unique_ptr<MusicDevice>(synthesizer_));
};

} // namespace

TEST_P(GeneralMidiPitch, LiesWithinATwentiethOfACentOfTheTemperament)
{
    const auto meantone = TuningDocument::initBuiltin("Quartercomma Meantone");
    TuningDocument file;
    ASSERT_TRUE(file.readFromURL(VELMORA_EXAMPLES "/kirnberger-3.scl", "Scale"));
    DynamicTemperament dynamic;
    for (int n = 2; n < 36; n += 6) // the upper neighbour of each second pitch class
        dynamic.isomorph(*instrument_, n);
    Temperament low;
    for (int i = 0; i < 12; ++i)
        low.append(std::make_unique<Cent>(100.0 * i - 150.0));
    instrument_->setInstrument(static_cast<std::uint8_t>(GetParam()));
    for (int key = 0; key < 128; ++key)
        instrument_->stop(key);
    rendered(*synthesizer_, 3 * kRate);

    for (int key = 60; key < 72; ++key) {
        tune(equal);
        strike(key);
        const double reference = hertz(key);
        for (const Temperament* temperament : {&meantone->getTemperament(), &file.getTemperament(),
                                               static_cast<Temperament*>(&dynamic), &low}) {
            const bool isMeantone = temperament == &meantone->getTemperament();
            if (!isMeantone && key % 4 != 2)
                continue;
            SCOPED_TRACE(testing::Message() << "key " << key);
            // C is never bent.
            const double expected =
                key == 60 ? 0.0 : temperament->getTuning(key % 12).cent() - 100.0 * (key % 12);
            tune(*temperament);
            if (GetParam() != kBeatingProgram) {
                EXPECT_NEAR(cents(hertz(key, expected), reference), expected, 0.05) << "sounding";
            }
            if (GetParam() == kBeatingProgram || isMeantone) {
                release(key);
                strike(key);
                EXPECT_NEAR(cents(hertz(key, expected), reference), expected, 0.05) << "struck";
            }
        }
        release(key);
    }
}

INSTANTIATE_TEST_SUITE_P(Programs, GeneralMidiPitch,
                         testing::Values(kSteadyProgram, 16, kBeatingProgram));
