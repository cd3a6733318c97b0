// Changes the temperament while notes sound, and measures how the sound moves.

#include "audio/Glide.h"

#include "audio/Synthesizer.h"
#include "sound/ALInstrument.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

constexpr double kGlideRate = 48000.0;
constexpr int kPlayedKey = 74;

/// Equal temperament with all keys but C shifted.
Temperament shifted(double cents)
{
    Temperament result;
    for (int i = 0; i < 12; ++i)
        result.append(std::make_unique<Cent>(100.0 * i + (i == 0 ? 0.0 : cents)));
    return result;
}

std::unique_ptr<Instrument> sampledInstrument()
{
    auto result = std::make_unique<ALInstrument>();
    InstrumentStop& stop = result->appendStop("");
    stop.volume = 1.0F;
    for (const int key : {kPlayedKey, kPlayedKey + 12}) {
        const double pitch = equal.getPitch(static_cast<unsigned long>(key));
        auto& sound = result->sounds[std::to_string(key)] =
            std::make_unique<Sound>(result->renderer(), sine(pitch / 2.0, 20.0));
        auto& tail = result->sounds[std::to_string(key) + "tail"] = std::make_unique<Sound>(
            result->renderer(), sine(pitch, 20.0), std::nullopt, sound.get());
        Sample& sample = stop.samples[static_cast<std::size_t>(key)];
        sample.addAttack({sound.get(), pitch});
        sample.addRelease({tail.get(), pitch});
    }
    return result;
}

std::unique_ptr<Instrument> synthesizedInstrument()
{
    auto result = std::make_unique<MIDIInstrument>(
        std::make_unique<Synthesizer>(kGlideRate, std::vector{kBank}));
    result->setInstrument(kSteadyProgram);
    return result;
}

/// The sharpest bend of a sound.
double sharpestBend(std::span<const float> sound)
{
    double result = 0.0;
    for (std::size_t i = 2; i < sound.size(); ++i)
        result = std::max<double>(result, std::fabs(sound[i] - 2.0F * sound[i - 1] + sound[i - 2]));
    return result;
}

} // namespace

class GlideTest : public testing::TestWithParam<std::unique_ptr<Instrument> (*)()> {
protected:
    std::vector<float> render(double seconds)
    {
        return rendered(*instrument_->source(), static_cast<std::size_t>(seconds * kGlideRate))
            .left;
    }

    void tune(double cents) { instrument_->tune(shifted(cents), 0, 127); }

    /// Returns how many cents a key sounds above equal temperament.
    static double measured(std::span<const float> sound, double nearCents, int key = kPlayedKey)
    {
        const double hertz = equal.getPitch(static_cast<unsigned long>(key)) / 2.0;
        const double near = hertz * std::exp2(nearCents / 1200.0);
        return cents(measuredHertz(sound, kGlideRate, near), hertz);
    }

    /// The same of what is heard in so many seconds.
    double heard(double seconds, double nearCents, int key = kPlayedKey)
    {
        return measured(render(seconds), nearCents, key);
    }

    std::unique_ptr<Instrument> instrument_ = GetParam()();
};

TEST_P(GlideTest, TakesItsTimeAndArrivesWhereAJumpWould)
{
    tune(0.0);
    instrument_->play(kPlayedKey, 0.6F);
    render(0.5);
    const double home = heard(1.0, 0.0);
    for (const double target : {60.0, -30.0}) {
        instrument_->setGlide({});
        tune(target);
        const double there = heard(1.0, target);
        EXPECT_NEAR(there - home, target, 0.2);
        tune(0.0);
        render(0.1);
        instrument_->setGlide({0.5});
        tune(target);
        render(0.2);
        const double half = target / 2.0;
        EXPECT_NEAR(heard(0.1, half) - home, half, 0.02 * std::fabs(target));
        render(0.2);
        EXPECT_NEAR(heard(1.0, target), there, 0.05);
    }
}

TEST_P(GlideTest, IsNeverTooSteepToBeSmooth)
{
    constexpr double kCentsInASecond = GlidePath::kSteepest / GlidePath::kStep * kGlideRate;
    instrument_->setGlide({0.03});
    tune(0.0);
    instrument_->play(kPlayedKey, 0.6F);
    render(0.5);
    const double home = heard(0.5, 0.0);
    const double usual = sharpestBend(render(0.5));
    tune(190.0);
    const std::vector<float> sound = render(0.3);
    EXPECT_LT(sharpestBend(sound), 1.5 * usual);
    for (const double time : {0.04, 0.06, 0.08}) {
        constexpr double kWindow = 0.08;
        const auto begin = static_cast<std::size_t>((time - kWindow / 2.0) * kGlideRate);
        const double wanted = kCentsInASecond * time;
        EXPECT_NEAR(measured(std::span(sound).subspan(
                                 begin, static_cast<std::size_t>(kWindow * kGlideRate)),
                             wanted) -
                        home,
                    wanted, 8.0)
            << "after " << time << " s";
    }
    EXPECT_NEAR(heard(1.0, 190.0) - home, 190.0, 0.2);
}

TEST_P(GlideTest, LeavesNewNotesAtTheirOwnPitch)
{
    tune(0.0);
    instrument_->play(kPlayedKey, 0.6F);
    instrument_->play(kPlayedKey + 12, 0.6F);
    render(0.2);
    const double high = heard(0.5, 0.0, kPlayedKey + 12);
    const double low = heard(0.5, 0.0);
    instrument_->stop(kPlayedKey + 12);
    instrument_->setGlide({0.5});
    tune(40.0);
    instrument_->play(kPlayedKey + 12, 0.6F);
    render(0.1);
    EXPECT_NEAR(heard(0.2, 40.0, kPlayedKey + 12) - high, 40.0, 1.0) << "the other one glides";
    EXPECT_NEAR(heard(0.1, 28.0) - low, 28.0, 2.0);

    instrument_->setGlide({0.5, false});
    tune(0.0);
    render(1.0);
    EXPECT_NEAR(heard(0.5, 40.0) - low, 40.0, 0.2) << "is kept";
    instrument_->stop(kPlayedKey);
    render(2.0);
    instrument_->play(kPlayedKey, 0.6F);
    render(0.2);
    EXPECT_NEAR(heard(0.5, 0.0) - low, 0.0, 0.1) << "until the key is struck again";
}

INSTANTIATE_TEST_SUITE_P(Kinds, GlideTest,
                         testing::Values(&sampledInstrument, &synthesizedInstrument));

TEST(Glide, TakesTheTailsAlong)
{
    const auto instrument = sampledInstrument();
    const double hertz = equal.getPitch(kPlayedKey) / 2.0;
    const auto hear = [&](double seconds, double nearHertz) {
        return measuredHertz(
            rendered(*instrument->source(), static_cast<std::size_t>(seconds * kGlideRate)).left,
            kGlideRate, nearHertz);
    };
    instrument->setGlide({0.03});
    instrument->tune(equal, 0, 127);
    instrument->play(kPlayedKey, 1.0F);
    hear(0.1, hertz);
    instrument->stop(kPlayedKey);
    hear(1.0, hertz);
    instrument->tune(shifted(20.0), 0, 127);
    hear(0.1, hertz);
    // The sound of the tail is an octave higher.
    EXPECT_NEAR(cents(hear(1.0, 2.0 * hertz), 2.0 * hertz), 20.0, 0.3) << "a key that is up";
    instrument->play(kPlayedKey, 1.0F);
    instrument->tune(shifted(40.0), 0, 127);
    hear(0.1, hertz);
    EXPECT_NEAR(cents(hear(1.0, 2.0 * hertz), 2.0 * hertz), 40.0, 0.3) << "one struck again";
}

} // namespace velmora
