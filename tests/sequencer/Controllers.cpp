#include "sequencer/Controllers.h"

#include "support/SequenceTest.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace velmora {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::uint8_t kPedal = 64, kWheel = 1;

class ControllersTest : public SequenceTest {
protected:
    void control(int number, int value, int channel, double /*time*/) override
    {
        called(fmt::format("control {} {} {}", channel, number, value));
    }

    /// Runs in ticks of a thousandth of a second.
    void run(SequenceDocument& piece, double seconds)
    {
        for (const double end = now_ + seconds; now_ < end - 1e-9;) {
            now_ += 0.001;
            piece.transport().tick();
        }
    }

    SequenceDocument piece_{*this, Reading::Musical, [this] { return now_; }};
};

} // namespace

TEST(Controllers, ReturnToWhereTheyWereBeforeALoop)
{
    const Controllers controllers{{2.0, 0, kPedal, 100},     {3.0, 0, kPedal, 90},
                                  {4.0, 2, kPedal, 127},     {8.0, 0, kPedal, 0},
                                  {12.0, 1, kPitchWheel, 0}, {16.0, 0, kWheel, 1}};
    EXPECT_THAT(valuesBeforePass(controllers, 8.0, 16.0),
                testing::UnorderedElementsAre(ControllerEvent{8.0, 0, kPedal, 90},
                                              ControllerEvent{8.0, 1, kPitchWheel, 8192}))
        << "the others do not move in it";
}

TEST_F(ControllersTest, RecordsSavesAndPlaysAPedal)
{
    piece_.recorder().setChannel(3);
    piece_.transport().setMetronome({.whileRecording = true});
    liveKeys_.control(kPedal, 100, now_); // before the recording
    piece_.recorder().record();
    const double begun = now_;
    liveKeys_.control(kPedal, 127, begun + 0.25);
    press(60);
    liveKeys_.release(60, begun + 0.5);
    liveKeys_.control(kPedal, 0, begun + 1.0);
    run(piece_, 1.5);
    piece_.recorder().record();
    const Controllers recorded = piece_.controllers();
    ASSERT_EQ(recorded.size(), 2U);
    EXPECT_NEAR(recorded[0].step, 4.0, 1e-6);
    EXPECT_NEAR(recorded[1].step, 16.0, 1e-6);
    piece_.undoStack().undo();
    EXPECT_THAT(piece_.controllers(), IsEmpty());
    EXPECT_THAT(piece_.sequence().notes(), IsEmpty()) << "they are one take";
    piece_.undoStack().redo();

    const auto path = std::filesystem::temp_directory_path() / "velmora-pedal.mid";
    ASSERT_TRUE(
        piece_.save(path, SequenceFormat::MidiFile, SequenceDocument::SaveOperation::SaveAs));
    SequenceDocument again(*this, Reading::Musical, [this] { return now_; });
    again.read(path);
    std::filesystem::remove(path);
    ASSERT_EQ(again.controllers().size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_NEAR(again.controllers()[i].step, recorded[i].step, 1e-3);
        EXPECT_EQ(again.controllers()[i].value, recorded[i].value);
    }

    calls_.clear();
    again.transport().setPosition(8.0); // the pedal is down there
    again.transport().play();
    run(again, 0.7);
    again.transport().play();
    EXPECT_THAT(calls_, ElementsAre("control 3 64 127", "control 3 64 0", "control 3 64 0"))
        << "the last one lets it go";

    calls_.clear();
    again.transport().setPosition(0.0);
    again.transport().play();
    again.transport().stop(); // as a click does while it plays on
    run(again, 0.6);
    again.transport().play();
    EXPECT_EQ(calls_.back(), "control 3 64 0") << "it went down again";
}

TEST_F(ControllersTest, LetsGoWhatAnEditTakesAwayWhileItPlays)
{
    piece_.setControllers({{1.0, 3, kPedal, 127}, {2.0, 3, kWheel, 50}, {40.0, 3, kPedal, 0}}, {});
    piece_.edit()->addNote({.start = 0.0, .length = 60.0, .key = 60});
    piece_.updateExtent();
    piece_.transport().play();
    run(piece_, 0.5);
    calls_.clear();
    piece_.undoStack().undo();
    EXPECT_THAT(calls_, ElementsAre("control 3 1 0", "control 3 64 0"));
    calls_.clear();
    piece_.undoStack().redo();
    EXPECT_THAT(calls_, ElementsAre("control 3 1 50", "control 3 64 127")) << "as they are there";
    calls_.clear();
    piece_.transport().setPosition(50.0);
    EXPECT_THAT(calls_, ElementsAre("control 3 1 50", "control 3 64 0"));
    piece_.transport().play();
}

TEST_F(ControllersTest, ReplacesWhatARecordingMovesAgain)
{
    const ControllerEvent other{2.0, 0, kWheel, 5}, before{0.0, 0, kPedal, 127},
        within{4.0, 0, kPedal, 0}, after{9.0, 0, kPedal, 127};
    const ControllerEvent down{3.0, 0, kPedal, 64}, up{8.0, 0, kPedal, 1};
    EXPECT_THAT(withRecorded({before, other, within, after}, {down, up}),
                ElementsAre(before, other, down, up, after));
}

TEST_F(ControllersTest, ThinsWhatIsNotHeard)
{
    const auto at = [](double step, std::uint8_t number, int value) {
        return ControllerEvent{step, 0, number, static_cast<std::uint16_t>(value)};
    };
    EXPECT_THAT(thinned({at(0.0, kPedal, 0), at(1.0, kPedal, 70), at(1.1, kPedal, 90),
                         at(2.0, kPedal, 60), at(2.1, kPedal, 0)},
                        2),
                ElementsAre(at(1.0, kPedal, 70), at(2.0, kPedal, 60)))
        << "a pedal is down or up";
    EXPECT_THAT(thinned({at(0.0, kWheel, 10), at(0.1, kWheel, 11), at(0.2, kWheel, 12),
                         at(0.3, kWheel, 13), at(0.4, kWheel, 14), at(20.0, kWheel, 14)},
                        2),
                ElementsAre(at(0.0, kWheel, 10), at(0.3, kWheel, 13), at(0.4, kWheel, 14)))
        << "the value that lasts is exact";
}

} // namespace velmora
