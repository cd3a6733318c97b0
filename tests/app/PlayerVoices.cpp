// Renders ensembles and compares them with their voices.

#include "app/Player.h"
#include "audio/Synthesizer.h"
#include "sequencer/Voices.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/ScaleTemperament.h"

#include <gmock/gmock.h>

#include <memory>

namespace velmora {

namespace {

constexpr std::size_t kEnsembleRate = 48000;

struct Part {
    int channel;
    std::uint8_t program;
    int key;
};

/// Two of them play the same key, and two the same pitch class.
constexpr Part kFive[] = {{0, 79, 64}, {2, 16, 64}, {5, 71, 52}, {10, 73, 71}, {15, 19, 56}};

/// A General MIDI player in a temperament.
class Ensemble {
public:
    explicit Ensemble(const Temperament& temperament) : temperament_(temperament.fresh())
    {
        auto synthesizer = std::make_unique<Synthesizer>(kEnsembleRate, std::vector{kBank});
        source_ = synthesizer.get();
        instrument = std::make_unique<MIDIInstrument>(std::move(synthesizer));
        instrument->setReading(Reading::Musical);
        player.setTemperament(*temperament_);
        player.setInstrument(*instrument);
    }

    /// Lets every voice play its program.
    void usePrograms()
    {
        for (const Part& part : kFive)
            voices[static_cast<std::size_t>(part.channel)].sound.preset = {.number = part.program};
        player.setVoices(voices.sounds());
    }

    void play(const Part& part) { player.play(part.key, 0.6F, part.channel, 0.0); }
    void stop(const Part& part) { player.stop(part.key, part.channel, 0.0); }

    std::vector<float> next(double seconds = 0.5)
    {
        return rendered(*source_, static_cast<std::size_t>(seconds * kEnsembleRate)).left;
    }

    Player player;
    std::unique_ptr<MIDIInstrument> instrument;
    Voices voices = newVoices();

private:
    std::unique_ptr<Temperament> temperament_;
    Synthesizer* source_;
};

/// Returns the sound of one voice alone, on an instrument with its program.
std::vector<float> alone(const Part& part, const Temperament& temperament)
{
    Ensemble ensemble(temperament);
    ensemble.instrument->setInstrument(part.program);
    ensemble.play(part);
    return ensemble.next();
}

ScaleTemperament nineteenSteps()
{
    Scale scale;
    for (int i = 1; i <= 19; ++i)
        scale.pitches.emplace_back(Cent(1200.0 * i / 19));
    return ScaleTemperament(scale, KeyMapping());
}

auto sounds(const std::vector<float>& expected)
{
    return testing::Pointwise(testing::FloatNear(1e-3F), expected);
}

} // namespace

TEST(PlayerVoices, SoundTogetherAsEachOfThemDoesAlone)
{
    const Temperament meantone = Temperament::Meantone();
    const ScaleTemperament nineteen = nineteenSteps();
    for (const Temperament* temperament : std::initializer_list<const Temperament*>{
             &meantone, &nineteen}) { // by channels, and key by key
        std::vector<float> sum(kEnsembleRate / 2);
        for (const Part& part : kFive) {
            const auto one = alone(part, *temperament);
            EXPECT_GT(peak(one), 0.01F) << int{part.program};
            for (std::size_t i = 0; i < sum.size(); ++i)
                sum[i] += one[i];
        }
        Ensemble ensemble(*temperament);
        ensemble.usePrograms();
        for (const Part& part : kFive)
            ensemble.play(part);
        EXPECT_THAT(ensemble.next(), sounds(sum)) << temperament->repeatsEveryOctave();
    }
}

TEST(PlayerVoices, EndWhenTheyAreMutedAndGoOnWithoutThem)
{
    const Temperament meantone = Temperament::Meantone();
    Ensemble ensemble(meantone);
    ensemble.usePrograms();
    const Part& kept = kFive[0];
    const Part& muted = kFive[1]; // has the same key
    ensemble.play(kept);
    ensemble.play(muted);
    ensemble.next();
    ensemble.voices[static_cast<std::size_t>(muted.channel)].isMuted = true;
    ensemble.player.setVoices(ensemble.voices.sounds());
    ensemble.next(4.0);
    const std::vector<float> rest = ensemble.next();
    EXPECT_GT(peak(rest), 0.01F);
    ensemble.play(muted);
    ensemble.stop(muted);
    EXPECT_NEAR(peak(ensemble.next()), peak(rest), 0.1F * peak(rest)) << "a voice that is silent";

    ensemble.voices[static_cast<std::size_t>(kept.channel)].sound.volume = 50;
    ensemble.player.setVoices(ensemble.voices.sounds());
    ensemble.next(0.1);
    EXPECT_LT(peak(ensemble.next()), 0.5F * peak(rest)) << "a note that sounds already";
    ensemble.stop(kept);
    ensemble.next(4.0);
    EXPECT_EQ(peak(ensemble.next()), 0.0F);
}

TEST(PlayerVoices, AreBentAndFadedByTheirOwnControllers)
{
    constexpr Part kBentVoice{1, kSteadyProgram, 69}, kFadedVoice{2, kSteadyProgram, 69};
    constexpr int kSemitoneUp = midi::kWheelCentre + 4096;
    const Temperament meantone = Temperament::Meantone();
    const auto pitch = [](std::span<const float> sound, double near) {
        return measuredHertz(sound.last(kEnsembleRate), kEnsembleRate, near);
    };
    Ensemble ensemble(meantone);
    for (const Part& part : {kBentVoice, kFadedVoice})
        ensemble.voices[static_cast<std::size_t>(part.channel)].sound.preset = {.number =
                                                                                    part.program};
    ensemble.player.setVoices(ensemble.voices.sounds());
    ensemble.play(kFadedVoice);
    const auto straight = ensemble.next(1.5);
    const double reference = pitch(straight, 437.0);
    ensemble.player.control(midi::kExpression, 0, kFadedVoice.channel, 0.0);
    ensemble.player.control(midi::kPitchWheel, kSemitoneUp, kBentVoice.channel, 0.0);
    ensemble.play(kBentVoice);
    const auto bent = ensemble.next(1.5);
    EXPECT_NEAR(cents(pitch(bent, 463.0), reference), 100.0, 1.0);
    EXPECT_NEAR(peak(bent), peak(straight), 0.1F * peak(straight)) << "only one is heard";
    ensemble.stop(kBentVoice);
    ensemble.next(4.0);
    EXPECT_LT(peak(ensemble.next()), 0.001F);
    ensemble.player.control(midi::kExpression, 127, kFadedVoice.channel, 0.0);
    ensemble.next();
    EXPECT_NEAR(cents(pitch(ensemble.next(1.0), 437.0), reference), 0.0, 1.0) << "never bent";
}

TEST(PlayerVoices, MoveTheInstrumentWithoutAProgramOfTheirOwn)
{
    constexpr Part kPlain{1, 0, 64};
    const Temperament meantone = Temperament::Meantone();
    Ensemble ensemble(meantone);
    ensemble.instrument->setInstrument(kSteadyProgram);
    ensemble.player.setVoices(ensemble.voices.sounds());
    ensemble.play(kPlain);
    const float loud = peak(ensemble.next());
    ensemble.player.control(midi::kExpression, 0, kPlain.channel, 0.0);
    ensemble.next();
    EXPECT_LT(peak(ensemble.next()), 0.001F * loud);

    ensemble.voices[1].sound.preset = {.number = 79};
    ensemble.player.setVoices(ensemble.voices.sounds());
    ensemble.player.control(midi::kExpression, 50, kPlain.channel, 0.0);
    ensemble.next();
    EXPECT_GT(peak(ensemble.next()), 0.5F * loud) << "the instrument is free again";
}

TEST(PlayerVoices, EndAKeyThatTheyStrikeAgainWithAnotherSound)
{
    const Temperament meantone = Temperament::Meantone();
    Ensemble ensemble(meantone);
    const Part& part = kFive[0];
    ensemble.play(part);
    ensemble.usePrograms();
    ensemble.play(part);
    ensemble.stop(part);
    ensemble.stop(part);
    EXPECT_TRUE(ensemble.player.soundingKeys().none());
}

TEST(PlayerVoices, ChangeTheirProgramBetweenTwoNotes)
{
    const Temperament meantone = Temperament::Meantone();
    Ensemble ensemble(meantone);
    ensemble.usePrograms();
    const Part& first = kFive[1];
    Part second = first;
    second.program = kFive[4].program;
    const PartSound::Preset later{.number = second.program};
    ensemble.player.expectPrograms({&later, 1});
    ensemble.player.setVoices(ensemble.voices.sounds());
    EXPECT_THAT(ensemble.instrument->playedPrograms(), testing::Contains(second.program))
        << "it has to be in tune by then";
    ensemble.player.setProgram(second.channel, later, 0.0);
    ensemble.play(second);
    EXPECT_THAT(ensemble.next(), sounds(alone(second, meantone)));
    ensemble.player.setProgram(second.channel, std::nullopt, 0.0);
    ensemble.stop(second);
    ensemble.next(4.0);
    EXPECT_EQ(peak(ensemble.next()), 0.0F) << "it ends what the other program began";
}

TEST(PlayerVoices, SoundAlikeWhenTheyArePlayedLive)
{
    const Temperament meantone = Temperament::Meantone();
    Ensemble ensemble(meantone);
    ensemble.usePrograms();
    const Part& part = kFive[2];
    ensemble.player.setLiveSound({PartSound::Preset{.number = part.program}});
    ensemble.player.keyOn(part.key, 0.6F, kLetters);
    ensemble.play(part);
    ensemble.player.setLiveSound({});
    auto both = alone(part, meantone);
    for (float& sample : both)
        sample *= 2.0F;
    EXPECT_THAT(ensemble.next(), sounds(both));
    ensemble.player.keyOff(part.key, kLetters);
    ensemble.next(4.0);
    EXPECT_THAT(peak(ensemble.next()), testing::FloatNear(peak(both) / 2.0F, 0.1F * peak(both)))
        << "the voice goes on";
    ensemble.stop(part);
    EXPECT_TRUE(ensemble.player.soundingKeys().none());
}

TEST(PlayerVoices, PlayDrumsThatNoTemperamentTunes)
{
    static constexpr Part kTom{9, 0, 47};
    const auto drum = [](const Temperament& temperament, bool hasVoices) {
        Ensemble ensemble(temperament);
        if (hasVoices)
            ensemble.player.setVoices(ensemble.voices.sounds());
        ensemble.play(kTom);
        return ensemble.next();
    };
    Temperament high;
    for (int i = 0; i < 12; ++i)
        high.append(std::make_unique<Cent>(100.0 * i + 40.0));
    EXPECT_GT(peak(drum(equal, true)), 0.01F);
    EXPECT_EQ(drum(high, true), drum(equal, true));
    EXPECT_NE(drum(high, false), drum(equal, false));
}

} // namespace velmora
