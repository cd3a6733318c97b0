#include "audio/Synthesizer.h"

#include "midi/messages.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gmock/gmock.h>

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
        [&](int) { synthesizer.midiEvent(0x90, 60, 100); }, // again, before it is released
        [&](int i) { synthesizer.midiEvent(i % 2 == 0 ? 0x90 : 0x80, 60, 100); }};
    for (const int messages : {500, 16000, 20000}) { // the queue holds 16384
        for (const auto& storm : storms) {
            synthesizer.midiEvent(0x90, 60, 100);
            const float once = nextPeak(synthesizer);
            EXPECT_GT(once, 0.01F);
            EXPECT_GT(synthesizer.voices(), 0U);
            for (int i = 0; i < messages; ++i)
                storm(i);
            rendered(synthesizer, kRate);
            EXPECT_LT(nextPeak(synthesizer), 1.5F * once);
            synthesizer.midiEvent(0x80, 60, 0);
            rendered(synthesizer, 3 * kRate);
            EXPECT_EQ(nextPeak(synthesizer), 0.0F) << &storm - storms << ": " << messages;
            EXPECT_EQ(synthesizer.voices(), 0U);
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
        EXPECT_EQ(peak(sounds.back().left) > 0.1F, channel < 13) << channel;
    }
}

TEST(Synthesizer, StartsEachNoteExactlyAtItsFrame)
{
    constexpr double kStart = 1000.0;
    const auto play = [](double rate, const std::vector<std::size_t>& onsets) {
        Synthesizer synthesizer(rate, {kBank});
        synthesizer.midiEvent(0xC2, kSteadyProgram, 0);
        synthesizer.midiEvent(0xB2, midi::kChannelVolume, 70);
        synthesizer.midiEvent(0xE2, 17, 60);
        for (int key = 5; key < 128; key += 12) // the lanes have been lent to another channel
            synthesizer.midiEvent(0x95, key, 100);
        rendered(synthesizer, 1000);
        synthesizer.midiEvent(0xB5, midi::kAllSoundOff, 0);
        rendered(synthesizer, 20000);
        for (const std::size_t onset : onsets) {
            for (const int status : {0x92, 0x82}) {
                const std::size_t frame = onset + (status == 0x82 ? 300 : 0);
                synthesizer.setDue(kStart + static_cast<double>(frame) / rate);
                synthesizer.midiEvent(status, 74, 100);
            }
        }
        Stereo sound(30000);
        double start = kStart;
        inBlocks(sound, {128, 7, 1000}, [&](float* left, float* right, std::size_t frames) {
            synthesizer.render(left, right, frames, start);
            start += static_cast<double>(frames) / rate;
        });
        return sound.left;
    };
    for (const double rate : {48000.0, 192000.0}) {
        // Every part is linear, so the notes add up from shifted copies of one note.
        const std::vector<std::size_t> onsets{0,    311,  1000, 2345, 2777,
                                              3500, 4999, 6101, 9000, 9377};
        const std::vector<float> note = play(rate, {0});
        std::vector<float> expected(note.size());
        for (const std::size_t onset : onsets) {
            for (std::size_t i = onset; i < expected.size(); ++i)
                expected[i] += note[i - onset];
        }
        EXPECT_GT(peak(note), 0.05F);
        // FluidSynth begins a note slightly differently on a voice that it has used before, and at
        // 192 kHz four frames make one of the reverb.
        EXPECT_THAT(play(rate, onsets), testing::Pointwise(testing::FloatNear(2e-3F), expected))
            << rate;
    }
}

TEST(Synthesizer, PlaysInTheOrderInWhichMessagesAreDue)
{
    constexpr double kStart = 1000.0;
    Synthesizer synthesizer(kRate, {kBank});
    const auto send = [&](double frame, int status, int key) {
        synthesizer.setDue(kStart + frame / kRate);
        synthesizer.midiEvent(status, key, 100);
    };
    send(0, 0xC0, kSteadyProgram);
    send(0, 0xC1, kSteadyProgram);
    send(3000, 0x90, 60);
    send(1000, 0x91, 61); // from another device
    synthesizer.setDue(0.0);
    synthesizer.midiEvent(0x80, 60, 0); // such as from a window
    Stereo sound(4000);
    synthesizer.render(sound.left.data(), sound.right.data(), sound.left.size(), kStart);
    EXPECT_EQ(peak(std::span(sound.left).first(1000)), 0.0F);
    EXPECT_GT(peak(std::span(sound.left).subspan(1000, 500)), 0.0F);
    send(4000, 0x81, 61);
    rendered(synthesizer, 3 * kRate);
    EXPECT_EQ(nextPeak(synthesizer), 0.0F) << "a key is not released before it is struck";

    synthesizer.setDue(kStart + 1.0);
    synthesizer.keyOn(60, 100, 60, 0.0);
    synthesizer.setDue(0.0);
    for (int channel = 0; channel < midi::kChannels; ++channel)
        synthesizer.midiEvent(midi::kControlChange | channel, midi::kAllSoundOff, 0);
    rendered(synthesizer, 3 * kRate);
    EXPECT_EQ(nextPeak(synthesizer), 0.0F) << "nor silenced";
}

TEST(Synthesizer, PlaysInTuneAtEveryRateAndBend)
{
    const auto hertz = [](double rate, double cents, double firstRate = 0.0, int lost = 0) {
        Synthesizer synthesizer(firstRate > 0.0 ? firstRate : rate, {kBank});
        synthesizer.setRate(rate);
        const auto bend = [&] {
            synthesizer.midiEvent(0xE4, 0, 32); // -100 cents
            synthesizer.bend(cents + 100.0);
        };
        for (int i = 0; i < lost; ++i)
            synthesizer.midiEvent(0xB0, midi::kChannelVolume, 100);
        if (lost > 0) {
            bend();
            rendered(synthesizer, 100);
        }
        synthesizer.midiEvent(0xC4, kSteadyProgram, 0);
        synthesizer.midiEvent(0x94, 64, 100);
        rendered(synthesizer, static_cast<std::size_t>(rate) / 2);
        if (lost == 0)
            bend();
        return measuredHertz(rendered(synthesizer, static_cast<std::size_t>(rate)).left, rate,
                             329.6 * std::exp2(cents / 1200.0));
    };
    const double reference = hertz(kRate, 0.0);
    for (const double rate : {22050.0, 44123.4, 96000.0, 96001.0, 192000.0, 384000.0}) {
        for (const double bend : {-431.7, 0.0, 19.3, 350.5})
            EXPECT_NEAR(cents(hertz(rate, bend), reference), bend, 0.05) << rate << " Hz";
        EXPECT_NEAR(cents(hertz(rate, 0.0, kRate), reference), 0.0, 0.05) << rate << " Hz later";
    }
    EXPECT_NEAR(cents(hertz(kRate, 19.3, kRate, 20000), reference), 19.3, 0.05)
        << "although the queue was full";
}

TEST(Synthesizer, ReverberatesEquallyLongAtEveryRate)
{
    const auto levelLater = [](double rate) {
        Reverb reverb(rate);
        Stereo sound(static_cast<std::size_t>(rate / 5.0));
        for (std::size_t i = 0; i < sound.left.size() / 2; ++i)
            sound.left[i] = static_cast<float>(std::sin(6000.0 * static_cast<double>(i) / rate));
        inBlocks(sound, {128}, [&](float* l, float* r, std::size_t n) { reverb.process(l, r, n); });
        return peak(std::span(sound.left).last(static_cast<std::size_t>(rate / 20.0)));
    };
    const float expected = levelLater(kRate);
    for (const double rate : {96000.0, 192000.0})
        EXPECT_NEAR(levelLater(rate) / expected, 1.0F, 0.2F) << rate;
}

TEST(Synthesizer, SkipsSoundFontsThatCannotBeLoaded)
{
    const auto broken = std::filesystem::path(testing::TempDir()) / "broken.sf2";
    std::ofstream(broken) << "RIFF\x10sfbk";
    EXPECT_EQ(Synthesizer(kRate, {"/nowhere/bank.sf2", broken, kBank}).bank(), kBank);

    EXPECT_THROW(Synthesizer(7999.0, {kBank}), std::runtime_error)
        << "FluidSynth would be out of tune";

    Synthesizer silent(kRate, {broken});
    silent.bend(50.0);
    for (int status = 0x80; status < 0x100; ++status)
        silent.midiEvent(status, 60, 100);
    EXPECT_EQ(nextPeak(silent), 0.0F);
}

} // namespace velmora
