// Plays the written files on FluidSynth alone, as any General MIDI device would, and measures them.

#include "sound/TunedMidiWriter.h"

#include "midi/StandardMidiFile.h"
#include "support/Pitch.h"
#include "support/SineBank.h"
#include "support/Stereo.h"
#include "tuning/FollowingMeantone.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <fluidsynth.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <memory>

namespace velmora {

namespace {

constexpr double kFileRate = 48000.0;
const Program kSines{.bank = 0, .number = 0, .name = {}, .isPercussion = false};

/// Returns a SoundFont that is exactly in tune.
const std::string& bank()
{
    static const std::string path = testing::TempDir() + "sines.sf2";
    std::ofstream(path, std::ios::binary) << sineBank([](int) { return 0; });
    return path;
}

/// Returns what FluidSynth makes of a file.
std::vector<float> played(const std::string& file)
{
    const std::unique_ptr<fluid_settings_t, void (*)(fluid_settings_t*)> settings(
        new_fluid_settings(), delete_fluid_settings);
    fluid_settings_setnum(settings.get(), "synth.sample-rate", kFileRate);
    fluid_settings_setint(settings.get(), "synth.reverb.active", 0);
    fluid_settings_setint(settings.get(), "synth.chorus.active", 0);
    const std::unique_ptr<fluid_synth_t, void (*)(fluid_synth_t*)> synth(
        new_fluid_synth(settings.get()), delete_fluid_synth);
    fluid_synth_sfload(synth.get(), bank().c_str(), 1);
    const std::unique_ptr<fluid_player_t, void (*)(fluid_player_t*)> player(
        new_fluid_player(synth.get()), delete_fluid_player);
    fluid_player_add_mem(player.get(), file.data(), file.size());
    fluid_player_play(player.get());
    std::vector<float> sound;
    while (fluid_player_get_status(player.get()) == FLUID_PLAYER_PLAYING) {
        std::array<float, 64> left{}, right{};
        fluid_synth_write_float(synth.get(), 64, left.data(), 0, 1, right.data(), 0, 1);
        sound.insert(sound.end(), left.begin(), left.end());
    }
    return sound;
}

void pass(TunedMidiWriter& writer, double seconds)
{
    std::vector<float> none(static_cast<std::size_t>(kFileRate * seconds));
    writer.source()->render(none.data(), none.data(), none.size(), AudioSource::kOffline);
}

/// A scale of equal steps of an octave.
ScaleTemperament equalSteps(int steps)
{
    Scale scale;
    for (int step = 1; step <= steps; ++step)
        scale.pitches.emplace_back(Cent(1200.0 * step / steps));
    return ScaleTemperament(scale);
}

/// How long each key of a scale sounds, and the silence behind it, in seconds.
constexpr double kNote = 0.7, kRest = 0.4;

/// Returns how far the sound at a time is from where a temperament has a key, in cents.
double errorAt(std::span<const float> sound, double seconds, const Temperament& temperament,
               int key)
{
    constexpr std::size_t kFrames = 24000;
    const auto begin = static_cast<std::size_t>(kFileRate * seconds);
    if (sound.size() < begin + kFrames)
        return HUGE_VAL;
    const double expected = temperament.pitchAt(key) / 2.0;
    return 1200.0 *
           std::log2(measuredHertz(sound.subspan(begin, kFrames), kFileRate, expected) / expected);
}

/// Returns the errors of the keys from `first` to `last`, which sound one after the other.
std::vector<double> errorsOf(const Temperament& temperament, int first, int last)
{
    TunedMidiWriter writer(kSines, kFileRate);
    writer.setBeats(TunedMidiWriter::steadyBeats(97.0));
    writer.tune(temperament, 0, kLastKey);
    for (int key = first; key <= last; ++key) {
        writer.play(key, 0.7F);
        pass(writer, kNote);
        writer.stop(key);
        pass(writer, kRest);
    }
    EXPECT_EQ(writer.notes().wrong, 0);
    const std::vector<float> sound = played(writer.finish());
    std::vector<double> errors;
    for (int key = first; key <= last; ++key)
        errors.push_back(errorAt(sound, (kNote + kRest) * (key - first) + 0.2, temperament, key));
    return errors;
}

/// In cents: FluidSynth plays whole cents, and bends by 99.2 % of what a wheel says.
constexpr double kTolerance = 0.93;

} // namespace

TEST(TunedMidiWriter, WritesFilesThatSoundInTheTemperament)
{
    const TransposedTemperament low(Temperament::Meantone().fresh(), {.root = 2, .a = 415.0});
    const ScaleTemperament nineteen = equalSteps(19), many = equalSteps(53);
    const Temperament meantone = Temperament::Meantone();
    for (const Temperament* temperament :
         std::initializer_list<const Temperament*>{&meantone, &low, &nineteen, &many}) {
        const auto errors = errorsOf(*temperament, 55, 75);
        for (std::size_t i = 0; i < errors.size(); ++i)
            EXPECT_NEAR(errors[i], 0.0, kTolerance) << "key " << 55 + i;
    }
}

TEST(TunedMidiWriter, BendsWhatSoundsWhenAnAdaptiveTemperamentMovesIt)
{
    TunedMidiWriter writer(kSines, kFileRate);
    writer.setBeats(TunedMidiWriter::steadyBeats(120.0));
    FollowingMeantone temperament;
    writer.tune(temperament, 0, kLastKey);
    const auto strike = [&](int key, double time) {
        temperament.setTime(time);
        temperament.setup(writer, static_cast<unsigned char>(key), 0.7F);
        writer.play(key, 0.7F);
    };
    strike(63, 0.0); // an E♭, until the notes of E major follow at once
    const double flat = temperament.getPitch(63);
    for (const int key : {52, 54, 56, 59, 64, 66, 68, 71, 76})
        strike(key, 0.01);
    for (const int key : {52, 54, 56, 59, 64, 66, 68, 71, 76})
        writer.stop(key);
    pass(writer, 1.0);
    ASSERT_LT(temperament.getPitch(63), 0.99 * flat) << "the temperament has corrected it";
    const std::vector<float> sound = played(writer.finish());
    EXPECT_NEAR(errorAt(sound, 0.4, temperament, 63), 0.0, kTolerance);
}

TEST(TunedMidiWriter, TellsWhichNotesFindNoChannel)
{
    const ScaleTemperament many = equalSteps(53);
    TunedMidiWriter writer(kSines, kFileRate);
    writer.setBeats(TunedMidiWriter::steadyBeats(120.0));
    writer.tune(many, 0, kLastKey);
    for (int key = 50; key < 65; ++key)
        writer.play(key, 0.5F);
    EXPECT_EQ(writer.notes().wrong, 0) << "fifteen different bends";
    writer.play(65, 0.5F);
    EXPECT_EQ(writer.notes().wrong, 1);
    EXPECT_EQ(writer.notes().count, 16);
    EXPECT_LT(writer.notes().worstCents, 12.0) << "the nearest of them";
    writer.stop(50);
    writer.stop(65);
    writer.play(66, 0.5F);
    EXPECT_EQ(writer.notes().wrong, 1) << "a channel is free again";

    const std::string bytes = writer.finish();
    const StandardMidiFile file = readStandardMidiFile(std::as_bytes(std::span(bytes)));
    std::size_t notes = 0;
    for (const MidiEvent& event : file.tracks.at(0)) {
        notes += event.kind == MidiEvent::Kind::Note ? 1 : 0;
        EXPECT_TRUE(event.kind != MidiEvent::Kind::Note || event.channel != 9) << "percussion";
    }
    EXPECT_EQ(notes, 17);
}

} // namespace velmora
