#include "platform/Synthesizer.h"

#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace {

constexpr std::size_t kRate = 48000;
constexpr float kSilence = 1e-5F;

class SynthesizerTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (int channel = 0; channel < 16; ++channel)
            synthesizer.midiEvent(0xC0 | channel, kSteadyProgram, 0);
    }

    float peakOf(std::size_t frames)
    {
        const Stereo sound = rendered(synthesizer, frames);
        return std::max(peak(sound.left), peak(sound.right));
    }

    Synthesizer synthesizer{kRate, {kBank}};
};

} // namespace

TEST_F(SynthesizerTest, LosesNoEndOfANoteHoweverMuchComesAtOnce)
{
    const std::function<void(int)> storms[] = {
        [&](int i) { synthesizer.midiEvent(0xE0, i % 128, 64); },
        [&](int i) { synthesizer.midiEvent(0x90, 12 * (i % 11), 100); },
        [&](int i) { synthesizer.midiEvent(i % 2 == 0 ? 0x90 : 0x80, 60, 100); }};
    for (const int messages : {500, 16000, 20000}) { // the queue holds 16384
        for (const auto& storm : storms) {
            synthesizer.midiEvent(0x90, 60, 100);
            EXPECT_GT(peakOf(kRate / 10), 0.01F);
            for (int i = 0; i < messages; ++i)
                storm(i);
            for (int key = 0; key < 128; key += 12)
                synthesizer.midiEvent(0x80, key, 0);
            peakOf(2 * kRate);
            EXPECT_LT(peakOf(kRate / 10), kSilence) << &storm - storms << ": " << messages;
        }
    }
}

TEST_F(SynthesizerTest, BendsAsFarAsFourteenBitsGo)
{
    synthesizer.midiEvent(0x91, 61, 100);
    rendered(synthesizer, kRate / 4);
    const double near = 277.18;
    const double unbent = measuredHertz(rendered(synthesizer, kRate).left, kRate, near);
    for (const auto& [low, high, bend] :
         {std::tuple(127, 127, 199.976), {0, 128, 199.976}, {0, 0, -200.0}, {0, -64, -200.0}}) {
        synthesizer.midiEvent(0xE1, low, high);
        rendered(synthesizer, kRate / 10);
        const double hertz = measuredHertz(rendered(synthesizer, kRate).left, kRate,
                                           near * std::exp2(bend / 1200.0));
        EXPECT_NEAR(cents(hertz, unbent), bend, 0.05) << low << ", " << high;
    }
}

TEST_F(SynthesizerTest, SoundsOnlyTheChannelsOfPitchClasses)
{
    for (const int channel : {9, 13, 14, 15})
        synthesizer.midiEvent(0x90 | channel, 60, 127);
    EXPECT_EQ(peakOf(kRate), 0.0F);
    for (const int channel : {0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12}) {
        synthesizer.midiEvent(0x90 | channel, 60, 100);
        EXPECT_GT(peakOf(kRate / 10), 0.01F) << channel;
        synthesizer.midiEvent(0x80 | channel, 60, 0);
        peakOf(kRate);
    }
}

TEST_F(SynthesizerTest, FallsSilentAndWakesUpAsItWas)
{
    const auto strike = [&] {
        synthesizer.midiEvent(0x94, 64, 100);
        Stereo sound = rendered(synthesizer, kRate / 10);
        synthesizer.midiEvent(0x84, 64, 0);
        rendered(synthesizer, 3 * kRate);
        EXPECT_EQ(peakOf(kRate), 0.0F) << "all of it";
        return sound;
    };
    const Stereo first = strike();
    EXPECT_GT(peak(first.left), 0.01F);
    EXPECT_NEAR(peak(strike().left), peak(first.left), 0.01F);
}

TEST_F(SynthesizerTest, SoundsTheSameForTheSameMessages)
{
    const auto play = [] {
        Synthesizer fresh(kRate, {kBank});
        Stereo sound(kRate);
        int key = 40;
        inBlocks(sound, {500, 33, 128}, [&](float* left, float* right, std::size_t frames) {
            fresh.midiEvent(0x90 | key % 9, key, 90);
            fresh.midiEvent(0xE0 | key % 9, key, 64);
            fresh.midiEvent(0x80 | (key + 4) % 9, key - 5, 0);
            key = 40 + (key + 1) % 40;
            fresh.render(left, right, frames);
        });
        return sound;
    };
    const Stereo sound = play();
    EXPECT_GT(peak(sound.left), 0.1F);
    EXPECT_EQ(play(), sound);
}

TEST(SynthesizerBanks, PassesOverABankThatCannotBeLoaded)
{
    const auto broken = std::filesystem::path(testing::TempDir()) / "broken.sf2";
    std::ofstream(broken) << "RIFF\x10sfbk";
    const std::filesystem::path missing = "/nowhere/bank.sf2";
    EXPECT_EQ(Synthesizer(kRate, {missing, broken, kBank}).bank(), kBank);

    Synthesizer silent(kRate, {broken});
    EXPECT_TRUE(silent.bank().empty());
    for (int status = 0x80; status < 0x100; ++status)
        silent.midiEvent(status, 60, 100);
    const Stereo sound = rendered(silent, kRate / 10);
    EXPECT_EQ(std::max(peak(sound.left), peak(sound.right)), 0.0F);
}
