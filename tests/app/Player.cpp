#include "app/Player.h"

#include "audio/Synthesizer.h"
#include "sequencer/SequenceDocument.h"
#include "sound/ALInstrument.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/RecordingInstrument.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/FollowingMeantone.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace velmora {

namespace {

constexpr int kKey = 60;

/// A steady sound that outlasts every test.
class Organ : public ALInstrument {
public:
    Organ()
    {
        auto& sound = sounds["a"] = std::make_unique<Sound>(renderer(), sine(440.0, 30.0));
        InstrumentStop& stop = appendStop("");
        stop.volume = 0.5F;
        stop.samples[kKey].setBuffer(*sound, equal.getPitch(kKey));
    }
};

class PlayerTest : public testing::Test {
protected:
    PlayerTest()
    {
        auto synthesizer = std::make_unique<Synthesizer>(48000.0, std::vector{kBank});
        synthesizer_ = synthesizer.get();
        ocarina_ = std::make_unique<MIDIInstrument>(std::move(synthesizer));
        ocarina_->setInstrument(kSteadyProgram);
        player_.setTemperament(temperament_);
    }

    /// Returns the peak level after a second of fading.
    template <class Source> float heard(Source& source)
    {
        for (int i = 0; i < 60; ++i) {
            player_.fade();
            rendered(source, 800);
        }
        return peak(rendered(source, 4800).left);
    }

    void expectToStopOverThreeChanges(const std::function<void()>& press,
                                      const std::function<void()>& release)
    {
        player_.setInstrument(organ_);
        press();
        player_.setInstrument(*ocarina_);
        player_.setInstrument(other_);
        player_.setInstrument(third_);
        EXPECT_GT(heard(*organ_.source()), 0.0F) << "a change of instrument stops nothing";
        release();
        EXPECT_EQ(heard(*organ_.source()), 0.0F) << "sampled";

        player_.setInstrument(*ocarina_);
        press();
        player_.setInstrument(other_);
        player_.setInstrument(organ_);
        player_.setInstrument(third_);
        EXPECT_GT(heard(*synthesizer_), 0.0F) << "a change of instrument stops nothing";
        release();
        rendered(*synthesizer_, std::size_t{4} * 48000); // released keys die away
        EXPECT_EQ(heard(*synthesizer_), 0.0F) << "General MIDI";
    }

    Organ organ_;
    std::unique_ptr<MIDIInstrument> ocarina_;
    Synthesizer* synthesizer_ = nullptr;
    Calls calls_;
    RecordingInstrument other_{calls_}, third_{calls_};
    Temperament temperament_ = Temperament::Equal();
    DynamicTemperament dynamic_;
    Player player_;
};

} // namespace

TEST_F(PlayerTest, AKeyStopsOnTheInstrumentThatSoundsIt)
{
    expectToStopOverThreeChanges([&] { player_.keyOn(kKey, 1.0F); }, [&] { player_.keyOff(kKey); });
    player_.setTemperament(dynamic_);
    expectToStopOverThreeChanges([&] { player_.isomorph(3 * (kKey - 48)); },
                                 [&] { player_.stop(kKey, 0, 0.0); });
}

TEST_F(PlayerTest, ANoteOfAPlayingSequenceStopsOnTheInstrumentThatSoundsIt)
{
    double now = 0.0;
    SequenceDocument document(player_, Reading::Musical, [&] { return now; });
    document.edit()->addNote({.length = 4.0, .velocity = 1.0F, .key = kKey});
    document.updateExtent();
    const auto tickAt = [&](double time) {
        now = time;
        document.transport().tick();
    };
    expectToStopOverThreeChanges(
        [&] {
            document.transport().setPosition(0.0);
            document.transport().play();
            tickAt(now + 0.1);
        },
        [&] {
            tickAt(now + 1.0);
            document.transport().play();
        });
}

TEST_F(PlayerTest, StopsAKeyOnlyWhereItSounds)
{
    player_.setInstrument(other_);
    player_.keyOn(kKey, 0.5F);
    player_.setInstrument(third_);
    player_.keyOn(kKey, 0.5F);
    calls_.clear();
    player_.keyOff(kKey);
    EXPECT_EQ(calls_, (Calls{"stop 60", "stop 60"})) << "both instruments sound the key";
    calls_.clear();
    player_.keyOff(kKey);
    EXPECT_EQ(calls_, (Calls{"stop 60"})) << "the current instrument always stops it";

    player_.setInstrument(other_);
    player_.keyOn(kKey, 0.5F);
    player_.setInstrument(third_);
    player_.remove(other_);
    calls_.clear();
    player_.keyOff(kKey);
    player_.fade();
    player_.silence();
    EXPECT_EQ(calls_, (Calls{"stop 60", "fade 0.9", "silence"})) << "the removed one is forgotten";
}

TEST_F(PlayerTest, AKeySoundsUntilItsLastHolderReleasesIt)
{
    player_.setInstrument(other_);
    const KeySource piano = deviceSource(0, 0);
    const KeySource pedals = deviceSource(0, 1);
    const auto expectToEndWith = [&](const std::function<void()>& last) {
        calls_.clear();
        EXPECT_EQ(player_.liveKeys().state(kKey), 0) << "no hand holds it any more";
        EXPECT_EQ(player_.soundingKeys(), KeySet().set(kKey));
        last();
        EXPECT_TRUE(player_.soundingKeys().none());
        EXPECT_EQ(calls_, (Calls{"stop 60"}));
    };
    const auto pressAndRelease = [&] {
        player_.keyOn(kKey, 0.5F, piano);
        player_.keyOff(kKey, piano);
    };

    player_.keyOn(kKey, 0.5F, piano);
    player_.keyOn(kKey, 0.5F, pedals);
    player_.play(kKey, 0.5F, 0, 0.0);
    player_.keyOn(kKey, 0.5F);
    player_.keyOff(kKey, piano);
    player_.keyOff(kKey);
    EXPECT_NE(player_.liveKeys().state(kKey), 0);
    player_.keyOff(kKey, pedals);
    expectToEndWith([&] { player_.stop(kKey, 0, 0.0); });

    player_.setSustain(piano, true, 0.0);
    player_.setSustain(pedals, true, 0.0);
    pressAndRelease();
    pressAndRelease();
    player_.setSustain(pedals, false, 0.0);
    expectToEndWith([&] { player_.setSustain(piano, false, 0.0); });

    player_.keyOn(kKey, 0.5F, piano);
    player_.setSostenuto(piano, true, 0.0);
    player_.keyOff(kKey, piano);
    player_.keyOn(kKey + 1, 0.5F, piano);
    player_.setSostenuto(piano, true, 0.0); // a pedal that sends every movement
    player_.keyOff(kKey + 1, piano);
    EXPECT_EQ(calls_.back(), "stop 61") << "it was not down when the pedal was pressed";
    expectToEndWith([&] { player_.setSostenuto(piano, false, 0.0); });

    player_.keyOn(kKey, 0.5F, piano);
    player_.setSostenuto(piano, true, 0.0);
    player_.setSustain(piano, true, 0.0);
    calls_.clear();
    player_.releaseAll(piano);
    player_.keyOn(kKey + 1, 0.5F, piano);
    player_.keyOff(kKey + 1, piano);
    EXPECT_EQ(calls_, (Calls{"stop 60", "play 61 0.50", "stop 61"})) << "its pedals are up";
}

TEST_F(PlayerTest, PedalsOfASequenceHoldTheKeysOfTheirChannel)
{
    constexpr int kDown = 127, kUp = 0;
    const auto strike = [&](int key, int channel) {
        player_.play(key, 0.5F, channel, 0.0);
        player_.stop(key, channel, 0.0);
    };
    player_.setInstrument(other_);
    calls_.clear();
    player_.control(midi::kSustain, kDown, 1, 0.0);
    strike(60, 1);
    strike(60, 1);
    strike(61, 2);
    player_.play(62, 0.5F, 1, 0.0);
    player_.control(midi::kSustain, kUp, 1, 0.0);
    EXPECT_EQ(calls_, (Calls{"play 60 0.50", "play 60 0.50", "play 61 0.50", "stop 61",
                             "play 62 0.50", "stop 60"}))
        << "key 62 is still played";

    calls_.clear();
    player_.control(midi::kSostenuto, kDown, 1, 0.0);
    player_.stop(62, 1, 0.0);
    strike(63, 1);
    player_.control(midi::kSostenuto, kUp, 1, 0.0);
    EXPECT_EQ(calls_, (Calls{"play 63 0.50", "stop 63", "stop 62"}));

    calls_.clear();
    player_.control(midi::kSustain, kDown, 1, 0.0);
    strike(60, 1);
    player_.stop(60, kEveryChannel, 0.0);
    player_.control(midi::kSustain, kUp, 1, 0.0);
    EXPECT_EQ(calls_, (Calls{"play 60 0.50", "stop 60"})) << "as at the end of playing";
}

TEST_F(PlayerTest, TheTemperamentKnowsWhichKeysSound)
{
    FollowingMeantone following;
    const auto isHeld = [&] { return following.follower().isHeld(kKey % 12); };
    player_.setInstrument(other_);
    player_.setTemperament(following);
    player_.keyOn(kKey, 0.5F, kMouse, 1.0);
    player_.play(kKey, 0.5F, 0, 2.0);
    player_.keyOff(kKey, kMouse, 3.0);
    EXPECT_TRUE(isHeld()) << "the sequence still holds it";
    player_.stop(kKey, 0, 4.0);
    EXPECT_FALSE(isHeld());
    const double before = following.follower().centre();
    player_.keyOn(kKey + 2, 0.5F, kMouse, 9.0);
    player_.keyOff(kKey + 2, kMouse, 60.0);
    EXPECT_NE(following.follower().centre(), before) << "time makes it forget";
    const auto centreAfter = [&](double time) {
        player_.setTime(time); // a rendering goes by its own time
        player_.play(kKey + 4, 0.5F, 0, 0.0);
        player_.stop(kKey + 4, 0, 0.0);
        player_.setTime(time + 30.0);
        player_.play(kKey, 0.5F, 0, 0.0);
        player_.stop(kKey, 0, 0.0);
        return following.follower().centre();
    };
    const double once = centreAfter(90.0);
    EXPECT_NEAR(centreAfter(200.0), once, 1e-6) << "what was long ago is forgotten";
    player_.keyOn(kKey, 0.5F, kMouse, 300.0);
    player_.silence();
    EXPECT_FALSE(isHeld());
    player_.setTemperament(temperament_);
}

} // namespace velmora
