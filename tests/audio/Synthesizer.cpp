#include "audio/Synthesizer.h"

#include "support/Bank.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace velmora {

namespace {

constexpr std::size_t kRate = 48000;

float nextPeak(Synthesizer& synthesizer)
{
    return peak(rendered(synthesizer, kRate / 10).left);
}

} // namespace

TEST(Synthesizer, EndsNotesUnderAnyLoad)
{
    Synthesizer synthesizer(kRate, {kBank});
    synthesizer.midiEvent(0xC0, kSteadyProgram, 0);
    const std::function<void(int)> storms[] = {
        [&](int i) { synthesizer.midiEvent(0xE0, i % 128, 64); },
        [&](int i) { synthesizer.midiEvent(i % 2 == 0 ? 0x90 : 0x80, 60, 100); }};
    for (const int messages : {500, 16000, 20000}) { // the queue holds 16384
        for (const auto& storm : storms) {
            synthesizer.midiEvent(0x90, 60, 100);
            EXPECT_GT(nextPeak(synthesizer), 0.01F);
            for (int i = 0; i < messages; ++i)
                storm(i);
            synthesizer.midiEvent(0x80, 60, 0);
            rendered(synthesizer, 3 * kRate);
            EXPECT_EQ(nextPeak(synthesizer), 0.0F) << &storm - storms << ": " << messages;
        }
    }
}

TEST(Synthesizer, IsDeterministicAndSilentOnUnusedChannels)
{
    const auto play = [](int channel) {
        Synthesizer fresh(kRate, {kBank});
        std::vector<Stereo> sounds;
        for (int key = 40; key < 80; ++key) {
            fresh.midiEvent(0x90 | channel, key, 90);
            fresh.midiEvent(0xE0 | channel, key, 64);
            fresh.midiEvent(0x80 | channel, key - 5, 0);
            sounds.push_back(rendered(fresh, 600));
        }
        return sounds;
    };
    for (int channel = 0; channel < 16; ++channel) {
        const auto sounds = play(channel);
        EXPECT_EQ(play(channel), sounds) << channel;
        EXPECT_EQ(peak(sounds.back().left) > 0.1F, channel != 9 && channel < 13) << channel;
    }
}

TEST(Synthesizer, SkipsSoundFontsThatCannotBeLoaded)
{
    const auto broken = std::filesystem::path(testing::TempDir()) / "broken.sf2";
    std::ofstream(broken) << "RIFF\x10sfbk";
    EXPECT_EQ(Synthesizer(kRate, {"/nowhere/bank.sf2", broken, kBank}).bank(), kBank);

    EXPECT_THROW(Synthesizer(192000.0, {kBank}), std::runtime_error)
        << "FluidSynth would be out of tune";

    Synthesizer silent(kRate, {broken});
    for (int status = 0x80; status < 0x100; ++status)
        silent.midiEvent(status, 60, 100);
    EXPECT_EQ(nextPeak(silent), 0.0F);
}

} // namespace velmora
