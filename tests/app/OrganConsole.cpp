#include "app/OrganConsole.h"

#include "app/AppDelegate.h"
#include "support/Sine.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace velmora {

namespace {

constexpr std::size_t kPedal = 0, kGreat = 1, kSwell = 2;

/// An organ of three divisions with a stop each, on the rank of the division's number.
std::unique_ptr<OrganInstrument> makeOrgan()
{
    auto ranks = std::make_unique<ALInstrument>();
    auto& sound = ranks->sounds["a"] =
        std::make_unique<Sound>(ranks->renderer(), sine(440.0, 30.0));
    ConsoleDefinition definition;
    for (std::size_t division : {kPedal, kGreat, kSwell}) {
        ranks->appendStop("").samples[60].setBuffer(*sound, 440.0);
        definition.divisions.push_back({"", division == kPedal, 36, 96});
        definition.stops.push_back({"", division, {{60, 1, division, 60}}, true});
    }
    definition.couplers = {{"II/I", kGreat, kSwell, 0, false}};
    definition.identity = "an organ";
    return std::make_unique<OrganInstrument>(std::move(ranks), definition);
}

std::string textOf(const std::filesystem::path& path)
{
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

class OrganConsoleTest : public testing::Test {
protected:
    OrganConsoleTest()
    {
        app_.tunings().addBuiltins();
        app_.setInstrument(*organ_, "Organ");
        devices_.arrived(keys_);
        QObject::connect(&console_, &OrganConsole::moved, [this] { ++moves_; });
        QObject::connect(&console_, &OrganConsole::failed,
                         [this](const std::string& sentence) { failure_ = sentence; });
    }

    ~OrganConsoleTest() override { std::filesystem::remove_all(file_.parent_path()); }

    void send(const std::vector<std::uint8_t>& message)
    {
        devices_.received(keys_.number, message, 1.0);
        QCoreApplication::processEvents();
    }

    /// The divisions whose key 60 is down, such as "02".
    std::string down()
    {
        std::string result;
        for (const std::size_t division : {kPedal, kGreat, kSwell}) {
            const Sample& sample = organ_->ranks().stops()[division].samples[60];
            if (sample.isPlaying() && !sample.released())
                result += std::to_string(division);
        }
        return result;
    }

    std::unique_ptr<OrganInstrument> organ_ = makeOrgan();
    AppDelegate app_;
    LiveDevices& devices_ = app_.midiDevices();
    OrganConsole& console_ = app_.organ();
    MidiDevice keys_{3, "Keys"};
    std::filesystem::path file_ = organSettingsFile("an organ");
    int moves_ = 0;
    std::string failure_;
};

} // namespace

TEST_F(OrganConsoleTest, TheSameKeyOnTwoManualsIsTwoKeys)
{
    send({0x90, 60, 127});
    send({0x91, 60, 127});
    EXPECT_EQ(down(), "12");
    send({0x80, 60, 0});
    send({0x92, 60, 127});
    EXPECT_EQ(down(), "02") << "the pedal is on the channel behind the manuals";
    console_.setDivisions({{"Keys", 1, kGreat}, {"Other", 2, kGreat}, {{}, 2, kSwell}});
    send({0x91, 60, 127});
    EXPECT_EQ(down(), "012");
    send({0x81, 60, 0});
    EXPECT_EQ(down(), "0") << "also where it was pressed before the table changed";
    devices_.departed(keys_);
    EXPECT_EQ(down(), "");

    app_.player().play(60, 1.0F, 2, 0.0);
    app_.player().play(60, 1.0F, 9, 0.0);
    EXPECT_EQ(down(), "12")
        << "a sequence follows the rows for all devices, then the lowest manual";
    app_.player().stop(60, 2, 0.0);
    EXPECT_EQ(down(), "1");
    app_.player().stop(60, kEveryChannel, 0.0);
    console_.setKeyboardDivision(kPedal);
    app_.keyOn(60, 1.0F);
    EXPECT_EQ(down(), "0");
    auto other = makeOrgan();
    app_.setInstrument(*other, "Other");
    app_.keyOff(60);
    EXPECT_EQ(down(), "") << "a change of instrument does not forget it";
    app_.setInstrument(*organ_, "Organ");
}

TEST_F(OrganConsoleTest, ControllersMoveSwellsAndProgramsRecallRegistrations)
{
    send({0xB1, 11, 0});
    send({0xB0, 7, 0});
    EXPECT_EQ(console_.state().swells, (std::vector{1.0F, 1.0F, 0.0F}));
    EXPECT_EQ(console_.state().gains, (std::vector{1.0F, 1.0F, 1.0F})) << "no stop was moved";
    EXPECT_EQ(moves_, 1);

    console_.keepUnderButton(1);
    console_.draw(kGreat, false);
    console_.drawCoupler(0, true);
    console_.keepUnderName("Flutes");
    console_.cancel();
    const auto drawnBy = [this](std::uint8_t program) {
        send({0xC5, program});
        return console_.state().drawn;
    };
    EXPECT_EQ(drawnBy(1), (Registration{{true, true, true}, {false}}));
    EXPECT_EQ(drawnBy(10), (Registration{{true, false, true}, {true}}));
    EXPECT_EQ(drawnBy(0), (Registration{{true, false, true}, {true}})) << "an empty button";
    EXPECT_EQ(drawnBy(11), (Registration{{true, false, true}, {true}}));
}

TEST_F(OrganConsoleTest, KeepsRegistrationsForEachOrgan)
{
    console_.keepUnderButton(9);
    console_.keepUnderName("a");
    console_.keepUnderName("b");
    EXPECT_FALSE(console_.rename(1, "a"));
    EXPECT_TRUE(console_.rename(1, "ü \"c\""));
    console_.remove(0);
    console_.setDivisions({{"Keys", kEveryChannel, kSwell}, {{}, 15, kGreat}});
    const OrganSettings kept = console_.settings();
    EXPECT_EQ(kept.named.at(0).name, "ü \"c\"");

    OrganConsole later(app_.player(), [] {});
    later.takeInstrument(*organ_);
    EXPECT_EQ(later.settings(), kept);
    EXPECT_EQ(later.divisions(), console_.divisions());

    const std::string damaged = textOf(file_).substr(0, 80);
    std::ofstream(file_) << damaged;
    auto again = makeOrgan();
    app_.setInstrument(*again, "Again");
    EXPECT_EQ(failure_.substr(0, 46), file_.filename().string() + ",");
    EXPECT_EQ(console_.settings(), OrganSettings());
    EXPECT_EQ(textOf(file_), damaged) << "nothing is overwritten unasked";
    console_.keepUnderButton(0);
    EXPECT_EQ(textOf(file_.string() + ".damaged"), damaged);
    EXPECT_TRUE(decodeOrganSettings(textOf(file_), *console_.definition()).buttons[0]);
    app_.setInstrument(*organ_, "Organ");
}

} // namespace velmora
