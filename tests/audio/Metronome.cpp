#include "audio/Metronome.h"

#include <gmock/gmock.h>

#include <cmath>
#include <utility>
#include <vector>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::FloatNear;
using testing::IsEmpty;

namespace {

constexpr double kStart = 100.0;

/// Renders a second in uneven blocks from `kStart` on. Returns where clicks begin, in frames, and
/// how loud.
std::vector<std::pair<std::size_t, float>> clicks(Metronome& metronome)
{
    std::vector<std::pair<std::size_t, float>> begun;
    std::vector<float> left(700), right(700);
    bool isSilent = true;
    for (std::size_t done = 0, block = 1; done < 48000; done += block, block = block * 7 % 641) {
        metronome.render(left.data(), right.data(), block,
                         kStart + static_cast<double>(done) / 48000.0);
        for (std::size_t i = 0; i < block; ++i) {
            if (isSilent && left[i] != 0.0F)
                begun.emplace_back(done + i, left[i]);
            isSilent = left[i] == 0.0F;
            EXPECT_EQ(left[i], right[i]);
        }
    }
    return begun;
}

} // namespace

TEST(Metronome, ClicksAtTheFrameThatIsMeant)
{
    Metronome metronome;
    metronome.click(Click::Beat, kStart + 0.5);
    metronome.click(Click::Bar, kStart + 0.25);
    metronome.click(Click::Division, kStart + 0.75001);
    metronome.setVolume(0.5F);
    EXPECT_THAT(clicks(metronome), ElementsAre(FieldsAre(12000U, FloatNear(0.25F, 1e-6F)),
                                               FieldsAre(24000U, FloatNear(0.175F, 1e-6F)),
                                               FieldsAre(36000U, FloatNear(0.075F, 1e-6F))));
}

TEST(Metronome, CancelsOnlyWhatIsStillToCome)
{
    Metronome metronome;
    metronome.click(Click::Bar, kStart + 0.25);
    metronome.click(Click::Beat, kStart + 0.5);
    metronome.cancelAfter(kStart + 0.3);
    metronome.click(Click::Beat, kStart + 0.75);
    EXPECT_THAT(clicks(metronome), ElementsAre(FieldsAre(12000U, 0.5F), FieldsAre(36000U, 0.35F)));
    EXPECT_THAT(clicks(metronome), IsEmpty());
}

} // namespace velmora
