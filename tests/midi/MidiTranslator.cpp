#include "midi/MidiTranslator.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

using Bytes = std::vector<std::uint8_t>;
using Row = std::tuple<const char*, std::vector<Bytes>, const char*>;

/// Reads messages and records the calls that they make.
class MidiTranslatorTest : public testing::Test, private MusicalInput {
protected:
    /// Returns the calls that the messages make.
    std::string read(const std::vector<Bytes>& messages)
    {
        calls_.clear();
        for (const Bytes& message : messages)
            translator_.read(message);
        return std::exchange(calls_, {});
    }

    PlayingSettings settings_;
    LearnedControls learned_;
    bool hasConsole_ = false;

private:
    void keyOn(int key, float velocity, int channel) override
    {
        calls_ += fmt::format("on {} {:.3f} ch{}, ", key, velocity, channel);
    }
    void keyOff(int key, int channel) override
    {
        calls_ += fmt::format("off {} ch{}, ", key, channel);
    }
    void setSustain(bool isDown, int channel) override { pedal("sustain", isDown, channel); }
    void setSostenuto(bool isDown, int channel) override { pedal("sostenuto", isDown, channel); }
    void setSoft(bool isDown) override { calls_ += isDown ? "soft down, " : "soft up, "; }
    void bend(double cents) override { calls_ += fmt::format("bend {:.2f}, ", cents); }
    void silence() override { calls_ += "silence, "; }
    void setProgram(std::uint8_t program) override
    {
        calls_ += fmt::format("program {}, ", program);
    }
    bool moveConsole(std::uint8_t controller, float value, int channel) override
    {
        if (hasConsole_)
            calls_ += fmt::format("console {} {:.3f} ch{}, ", controller, value, channel);
        return hasConsole_;
    }
    void setVolume(float volume, std::size_t slider) override
    {
        calls_ += fmt::format("volume {} {:.3f}, ", slider, volume);
    }
    void toggleVolume(std::size_t slider) override { calls_ += fmt::format("toggle {}, ", slider); }
    void setMasterVolume(float volume) override { calls_ += fmt::format("all {:.3f}, ", volume); }
    void toggleMasterVolume() override { calls_ += "toggle all, "; }
    void perform(LearnedAction::Kind action) override
    {
        calls_ += fmt::format("perform {}, ", static_cast<int>(action));
    }
    void learned(MidiControl control) override
    {
        calls_ += fmt::format("learned {} ch{} {}, ", static_cast<int>(control.kind),
                              control.channel, control.number);
    }
    void midiInput() override { calls_ += "told, "; }

    void pedal(const char* name, bool isDown, int channel)
    {
        calls_ += fmt::format("{} {} ch{}, ", name, isDown ? "down" : "up", channel);
    }

    std::string calls_;
    MidiTranslator translator_{settings_, learned_, *this};
};

} // namespace

TEST_F(MidiTranslatorTest, ReadsEachMessageAsAPlayerMeansIt)
{
    const Row rows[] = {
        {"a note", {{0x91, 60, 64}, {0x81, 60, 9}}, "on 60 0.504 ch1, told, off 60 ch1, told, "},
        {"velocity 0", {{0x90, 9, 127}, {0x90, 9, 0}}, "on 9 1.000 ch0, told, off 9 ch0, told, "},
        {"volumes", {{0xB0, 7, 127}, {0xB5, 78, 0}}, "volume 0 1.000, volume 4 0.000, "},
        {"a pedal that moves",
         {{0xB0, 66, 64}, {0xB0, 66, 127}, {0xB0, 66, 63}},
         "sostenuto down ch0, sostenuto up ch0, "},
        {"soft pedals of two channels",
         {{0xB0, 67, 64}, {0xB1, 67, 64}, {0xB0, 67, 0}, {0xB1, 67, 0}},
         "soft down, soft down, soft down, soft up, "},
        {"the wheel",
         {{0xE0, 127, 127}, {0xE0, 0, 0}, {0xE0, 0, 64}},
         "bend 199.98, bend -200.00, bend 0.00, "},
        {"a reset",
         {{0xB2, 64, 127}, {0xE2, 0, 0}, {0xB2, 121, 0}, {0xB2, 64, 0}},
         "sustain down ch2, bend -200.00, sustain up ch2, bend 0.00, "},
        {"all notes off",
         {{0x90, 60, 127}, {0x91, 62, 127}, {0xB0, 123, 0}, {0xB0, 124, 0}, {0x81, 62, 0}},
         "on 60 1.000 ch0, told, on 62 1.000 ch1, told, off 60 ch0, told, off 62 ch1, told, "},
        {"all sound off",
         {{0x90, 60, 127}, {0xB0, 120, 0}, {0x80, 60, 0}},
         "on 60 1.000 ch0, told, off 60 ch0, told, silence, "},
        {"a program change", {{0xC3, 7}}, "program 7, "},
        {"pressure and others",
         {{0xA0, 7, 1}, {0xD0, 7}, {0xF0, 7, 7, 0xF7}, {0xF2, 7, 7}, {0xF8}, {0xB0, 1, 127}},
         ""},
        {"malformed", {{}, {60, 7, 127}, {0x90, 60}, {0x90, 60, 200}, {0xB0, 7}, {0xC0}}, ""}};
    for (const auto& [name, messages, calls] : rows)
        EXPECT_EQ(read(messages), calls) << name;
}

TEST_F(MidiTranslatorTest, AKeyReleasesTheNoteThatItSounded)
{
    read({{0x90, 60, 127}});
    settings_.transposition = 2;
    EXPECT_EQ(read({{0x90, 58, 127}}), "on 60 1.000 ch0, told, ");
    EXPECT_EQ(read({{0x80, 60, 0}}), "told, ") << "another key sounds the same note";
    EXPECT_EQ(read({{0x80, 58, 0}}), "off 60 ch0, told, ");

    read({{0x90, 60, 127}});
    settings_.transposition = -24;
    EXPECT_EQ(read({{0x90, 60, 127}, {0x80, 60, 0}}),
              "off 62 ch0, on 36 1.000 ch0, told, off 36 ch0, told, ")
        << "struck again without a note-off";
    EXPECT_EQ(read({{0x90, 23, 127}, {0x80, 23, 0}, {0x90, 24, 127}}), "on 0 1.000 ch0, told, ");
}

TEST_F(MidiTranslatorTest, FollowsItsSettings)
{
    settings_.bendRange = 12;
    EXPECT_EQ(read({{0xE0, 0, 0}}), "bend -1200.00, ");
    settings_.bendRange = 0;
    EXPECT_EQ(read({{0xE0, 0, 1}, {0xE0, 0, 64}}), "bend 0.00, ") << "off, and no longer bent";
    const std::pair<VelocityCurve, const char*> rows[] = {
        {VelocityCurve::Linear, "0.008 0.504 1.000"},
        {VelocityCurve::Soft, "0.040 0.633 1.000"},
        {VelocityCurve::Hard, "0.008 0.358 1.000"},
        {VelocityCurve::Fixed, "0.787 0.787 0.787"}};
    for (const auto& [curve, velocities] : rows)
        EXPECT_EQ(fmt::format("{:.3f} {:.3f} {:.3f}", velocityOf(curve, 1), velocityOf(curve, 64),
                              velocityOf(curve, 127)),
                  velocities);
    settings_.velocityCurve = VelocityCurve::Hard;
    EXPECT_EQ(read({{0x90, 1, 64}}), "on 1 0.358 ch0, told, ");
}

TEST_F(MidiTranslatorTest, ALearnedControlDoesOnlyItsAction)
{
    using Kind = LearnedAction::Kind;
    learned_.listen({Kind::Volume, 9});
    EXPECT_EQ(read({{0x90, 60, 0}, {0xB0, 121, 0}, {0xC0, 1}}), "program 1, ") << "waits";
    EXPECT_EQ(read({{0xB3, 21, 5}, {0xB3, 21, 127}, {0xB2, 21, 127}}),
              "learned 1 ch3 21, volume 9 1.000, ");

    read({{0xB0, 64, 127}});
    learned_.listen({Kind::Play});
    EXPECT_EQ(read({{0xB0, 64, 127}, {0xB0, 64, 0}, {0xB0, 64, 64}, {0xB0, 64, 127}}),
              "sustain up ch0, learned 1 ch0 64, perform 2, ")
        << "a pedal that is down goes up, and a press counts once";

    read({{0x90, 60, 127}});
    learned_.set({MidiControl::Kind::Key, 0, 60}, {Kind::Silence});
    learned_.set({MidiControl::Kind::Key, 0, 61}, {Kind::Volume, 2});
    EXPECT_EQ(read({{0x80, 60, 0}, {0x90, 60, 1}, {0x80, 60, 0}, {0x91, 60, 127}}),
              "off 60 ch0, told, perform 5, on 60 1.000 ch1, told, ");
    EXPECT_EQ(read({{0x90, 61, 1}, {0x80, 61, 0}}), "toggle 2, ");
    learned_.set({MidiControl::Kind::Key, 0, 61}, {Kind::MasterVolume});
    learned_.set({MidiControl::Kind::Controller, 3, 22}, {Kind::MasterVolume});
    EXPECT_EQ(read({{0x90, 61, 1}, {0xB3, 22, 127}}), "toggle all, all 1.000, ");
    learned_.set({MidiControl::Kind::Controller, 3, 21}, {});
    EXPECT_EQ(read({{0xB3, 21, 127}, {0xB0, 7, 127}}), "volume 0 1.000, ") << "forgotten";
}

} // namespace velmora
