#include "audio/AlsaOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

namespace velmora {

namespace {

/// Plays half of full scale, and more than full scale in the first frame.
class Steady : public AudioSource {
public:
    void render(float* left, float* right, std::size_t frames, double /*start*/) override
    {
        std::fill_n(left, frames, 0.5F);
        std::fill_n(right, frames, 0.5F);
        if (!hasBegun_)
            left[0] = 2.0F;
        hasBegun_ = true;
    }

private:
    bool hasBegun_ = false;
};

} // namespace

TEST(AlsaOutput, ConvertsForDevicesThatTakeNoFloats)
{
    const auto folder = std::filesystem::path(testing::TempDir());
    const auto heard = folder / "heard.raw";
    std::ofstream(folder / "alsa.conf")
        << "</usr/share/alsa/alsa.conf>\n"
           "pcm.card { @args [ CARD DEV ] @args.CARD { type string } @args.DEV { type integer }\n"
           "type linear slave { format S16_LE pcm { type file file \""
        << heard.string() << "\" format raw slave.pcm { type null } } } }\n";
    setenv("ALSA_CONFIG_PATH", (folder / "alsa.conf").c_str(), 1);
    EXPECT_EQ(openAlsaOutput({"alsa", "nothing", 0.0, 0}), nullptr) << "no such device";
    Steady source;
    auto output = openAlsaOutput({"alsa", "card:CARD=A,DEV=0", 0.0, 64});
    ASSERT_TRUE(output);
    output->start(source);
    while (output->periods() < 3)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    output.reset();
    std::int16_t samples[4] = {};
    std::ifstream(heard, std::ios::binary).read(reinterpret_cast<char*>(samples), sizeof samples);
    EXPECT_EQ(samples[0], 32767);
    EXPECT_EQ(samples[1], 16384);
    EXPECT_EQ(samples[2], 16384);
}

} // namespace velmora
