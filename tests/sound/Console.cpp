#include "sound/Console.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <set>
#include <string>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t kGreat = 1, kSwell = 2;
constexpr std::size_t kPrincipal = 0, kMixture = 1, kFlute = 2;
constexpr std::size_t kSwellToGreat = 0, kOctave = 1, kGreatToSwell = 2;

/// A great with a principal on rank 0 and a mixture that borrows it, and a swell with a flute.
ConsoleDefinition definition()
{
    ConsoleDefinition console;
    console.divisions = {
        {"Pedal", true, 36, 67}, {"Great", false, 36, 96}, {"Swell", false, 36, 96}};
    console.stops = {
        {"Principal", kGreat, {{36, 61, 0, 36}}, false},
        {"Mixture", kGreat, {{36, 49, 0, 48}, {36, 61, 9, 36}, {36, 49, 0, 48}}, false},
        {"Flute", kSwell, {{24, 85, 1, 24}}, true}};
    console.couplers = {{"II/I", kGreat, kSwell, 0, false},
                        {"I 4", kGreat, kGreat, 12, false},
                        {"I/II", kSwell, kGreat, 0, false}};
    return console;
}

class ConsoleTest : public testing::Test, private Windchest {
protected:
    /// The pipes that speak.
    using Pipes = std::set<std::pair<std::size_t, int>>;

    Pipes pipes_;
    int starts_ = 0;
    std::string swell_;
    Console console_{definition(), 2, *this};

private:
    void startPipe(std::size_t rank, int key, float /*velocity*/, float /*gain*/) override
    {
        ++starts_;
        EXPECT_TRUE(pipes_.emplace(rank, key).second) << "it speaks already: " << key;
    }
    void stopPipe(std::size_t rank, int key) override { EXPECT_EQ(pipes_.erase({rank, key}), 1); }
    void openSwell(std::size_t division, float opening) override
    {
        swell_ += fmt::format("{} {:.2f}, ", division, opening);
    }
};

} // namespace

TEST_F(ConsoleTest, APipeSpeaksOnceUntilTheLastRouteToItLetsItGo)
{
    console_.draw(kPrincipal, true);
    console_.press(kGreat, 60, 1.0F);
    console_.press(kGreat, 72, 1.0F);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}}));
    console_.draw(kMixture, true); // its pipe for 60 is the principal's for 72, twice
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}, {0, 84}}));
    console_.release(kGreat, 72);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}})) << "the mixture goes on";
    console_.press(kGreat, 60, 1.0F);
    console_.draw(kPrincipal, false);
    EXPECT_EQ(pipes_, (Pipes{{0, 72}}));
    console_.release(kGreat, 60);
    EXPECT_EQ(pipes_, Pipes());
    EXPECT_EQ(starts_, 3);
    console_.release(kGreat, 60);
    console_.press(kGreat, 35, 1.0F);
    console_.press(kGreat, 97, 1.0F);
    EXPECT_EQ(pipes_, Pipes()) << "the manual ends there";
}

TEST_F(ConsoleTest, CouplersPlayOtherDivisionsAtOnceAndDoNotChain)
{
    console_.draw(kPrincipal, true);
    console_.press(kGreat, 60, 1.0F);
    console_.drawCoupler(kSwellToGreat, true);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {1, 60}}));
    console_.press(kSwell, 60, 1.0F);
    console_.drawCoupler(kGreatToSwell, true);
    console_.drawCoupler(kOctave, true);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}, {1, 60}})) << "no octave of the octave";
    console_.draw(kFlute, false);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}}));
    console_.draw(kFlute, true);
    console_.drawCoupler(kOctave, false);
    console_.release(kGreat, 60);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {1, 60}})) << "the key of the swell holds both";
    console_.drawCoupler(kGreatToSwell, false);
    console_.release(kSwell, 60);
    EXPECT_EQ(pipes_, Pipes());

    console_.press(kGreat, 96, 1.0F);
    console_.drawCoupler(kOctave, true);
    EXPECT_EQ(pipes_, (Pipes{{0, 96}, {1, 96}})) << "there is no pipe for 108";
}

TEST_F(ConsoleTest, RecallsRegistrationsWithoutStartingCommonPipesAgain)
{
    console_.draw(kPrincipal, true);
    console_.press(kGreat, 60, 1.0F);
    const Registration first = console_.state().drawn;
    console_.recall({{true, true, false}, {true}});
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}}));
    EXPECT_TRUE(console_.state().drawn.couplers[kSwellToGreat]);
    EXPECT_EQ(starts_, 2);
    console_.recall({{false, true}, {}});
    console_.setTutti(true);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}, {1, 60}}));
    EXPECT_FALSE(console_.state().drawn.couplers[kOctave]) << "not at unison pitch";
    console_.setTutti(true);
    console_.setTutti(false);
    EXPECT_EQ(pipes_, (Pipes{{0, 72}}));
    console_.setTutti(true);
    console_.recall(first);
    EXPECT_FALSE(console_.isTutti());
    EXPECT_EQ(console_.state().drawn, first);
    console_.cancel();
    EXPECT_EQ(pipes_, Pipes());
    console_.release(kGreat, 60);

    ConsoleState state = console_.state();
    state.gains = {0.5F, 2.0F};
    state.swells = {1.0F, 0.25F, 0.5F, 0.0F};
    console_.setState(state);
    EXPECT_EQ(console_.state().gains, (std::vector{0.5F, 1.0F, 1.0F}));
    EXPECT_EQ(swell_, "0 1.00, 1 0.25, 2 0.50, ");
}

TEST_F(ConsoleTest, ARankThatComesLaterSpeaksOnceForEachHeldKey)
{
    console_.draw(kPrincipal, true);
    console_.draw(kMixture, true);
    console_.drawCoupler(kSwellToGreat, true);
    console_.press(kGreat, 60, 1.0F);
    console_.press(kGreat, 62, 1.0F);
    console_.release(kGreat, 62);
    const Pipes wanted = std::exchange(pipes_, {}); // as if they had not been there
    EXPECT_EQ(wanted, (Pipes{{0, 60}, {0, 72}, {1, 60}}));
    console_.startRank(0);
    EXPECT_EQ(pipes_, (Pipes{{0, 60}, {0, 72}}));
    console_.startRank(1);
    console_.startRank(2);
    EXPECT_EQ(pipes_, wanted);
    console_.release(kGreat, 60);
    EXPECT_EQ(pipes_, Pipes());
}

TEST_F(ConsoleTest, ForgottenKeysLeaveNothingBehind)
{
    console_.press(kSwell, 60, 1.0F);
    pipes_.clear(); // silenced
    console_.forgetKeys();
    console_.release(kSwell, 60);
    console_.draw(kFlute, false);
    console_.draw(kFlute, true);
    EXPECT_EQ(pipes_, Pipes());
    console_.press(kSwell, 60, 1.0F);
    EXPECT_EQ(pipes_, (Pipes{{1, 60}}));
}

} // namespace velmora
