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
constexpr int kFirstKey = 60;

/// A program of two ranks that beat: only notes of the same age can be compared.
constexpr int kBeatingProgram = 19;

/// What a temperament takes a key away from equal temperament, in cents. C is never bent.
double deviation(const Temperament& temperament, int key)
{
    const int pitchClass = key % 12;
    return pitchClass == 0 ? 0.0 : temperament.getTuning(pitchClass).cent() - 100.0 * pitchClass;
}

class GeneralMidiPitch : public testing::TestWithParam<int> {
protected:
    GeneralMidiPitch()
    {
        auto device =
            std::make_unique<Synthesizer>(kRate, std::vector<std::filesystem::path>{kBank});
        synthesizer_ = device.get();
        instrument_ = std::make_unique<MIDIInstrument>(std::move(device));
        instrument_->setInstrument(static_cast<std::uint8_t>(GetParam()));
    }

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

    Synthesizer* synthesizer_;
    std::unique_ptr<MIDIInstrument> instrument_;
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

    double worst = 0.0;
    const auto check = [&](double measured, double reference, double expected) {
        const double error = std::fabs(cents(measured, reference) - expected);
        EXPECT_LT(error, 0.05);
        worst = std::max(worst, error);
    };
    for (int key = kFirstKey; key < kFirstKey + 12; ++key) {
        tune(equal);
        strike(key);
        const double reference = hertz(key);
        for (const Temperament* temperament : {&meantone->getTemperament(), &file.getTemperament(),
                                               static_cast<Temperament*>(&dynamic), &low}) {
            SCOPED_TRACE(testing::Message() << "key " << key);
            const double expected = deviation(*temperament, key);
            tune(*temperament);
            if (GetParam() != kBeatingProgram)
                check(hertz(key, expected), reference, expected); // of the note that sounds
            release(key);
            strike(key);
            check(hertz(key, expected), reference, expected); // of one that is struck
        }
        release(key);
    }
    RecordProperty("WorstErrorInCents", std::to_string(worst));
}

INSTANTIATE_TEST_SUITE_P(Programs, GeneralMidiPitch,
                         testing::Values(kSteadyProgram, 16, kBeatingProgram));
