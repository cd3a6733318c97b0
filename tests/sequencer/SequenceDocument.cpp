#include "sequencer/SequenceDocument.h"

#include "platform/MidiBytes.h"
#include "support/RecordingInstrument.h"
#include "tuning/Temperament.h"

#include <gmock/gmock.h>

#include <fstream>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr double kStepsPerSecond = 15.0; // at tempo 120

/// Writes down what it is asked to prepare.
class RecordingTemperament : public Temperament {
public:
    explicit RecordingTemperament(Calls& calls) : calls_(calls) {}

    void setup(Instrument& /*instrument*/, unsigned char key, float velocity) override
    {
        calls_.push_back(fmt::format("setup {} {:.2f}", key, velocity));
    }

private:
    Calls& calls_;
};

class SequenceDocumentTest : public testing::Test, public SequenceHost {
protected:
    Instrument* getInstrument() override { return hasInstrument_ ? &instrument_ : nullptr; }
    Temperament* getTemperament() override { return &temperament_; }
    std::mutex& soundLock() override { return lock_; }

    void read(const std::string& content)
    {
        const auto path = std::filesystem::path(testing::TempDir()) / "document.mid";
        std::ofstream(path, std::ios::binary) << content;
        document_.readFromURL(path);
    }

    /// One tick of the timer after so many steps; what was called since the last one.
    Calls tick(double steps)
    {
        now_ += steps / kStepsPerSecond;
        document_.loop();
        return std::exchange(calls_, {});
    }

    Calls calls_;
    bool hasInstrument_ = true;
    RecordingInstrument instrument_{calls_};
    RecordingTemperament temperament_{calls_};
    std::mutex lock_;
    double now_ = 1000.0;
    SequenceDocument document_{*this, [this] { return now_; }};
};

/// Key 60 from step 2 to 6, key 64 from 4 to 12; the extent is 44. A sixteenth of a step is a tick.
std::string twoNotes()
{
    return midi::file(
        midi::on(32, 60) + midi::on(32, 64, 64) + midi::off(32, 60) + midi::off(96, 64), 128);
}

} // namespace

TEST_F(SequenceDocumentTest, PlaysToTheEndAndGoesBackToTheBeginning)
{
    read(twoNotes());
    EXPECT_THAT(tick(100.0), IsEmpty()) << "before it plays";
    document_.play();
    EXPECT_THAT(tick(1.5), IsEmpty());
    EXPECT_THAT(tick(1.0), ElementsAre("setup 60 1.00", "play 60 1.00"));
    EXPECT_EQ(document_.stateOfNote(60), 2);
    EXPECT_THAT(tick(2.0), ElementsAre("setup 64 0.50", "play 64 0.50"));
    EXPECT_THAT(tick(2.0), ElementsAre("stop 60"));
    EXPECT_EQ(document_.stateOfNote(60), 0);
    EXPECT_THAT(tick(6.0), ElementsAre("stop 64"));
    EXPECT_THAT(tick(31.0), IsEmpty());
    EXPECT_NEAR(document_.getOffset(), 43.5, 1e-6);
    EXPECT_THAT(tick(1.0), ElementsAre("stop 60", "stop 64"));
    EXPECT_EQ(document_.mode(), SequenceDocument::Mode::Stopped);
    EXPECT_EQ(document_.getOffset(), 0.0);
    EXPECT_THAT(tick(10.0), IsEmpty());
}

TEST_F(SequenceDocumentTest, StartsAndEndsANoteInOneTick)
{
    read(twoNotes());
    document_.play();
    EXPECT_THAT(tick(20.0), ElementsAre("setup 60 1.00", "play 60 1.00", "stop 60", "setup 64 0.50",
                                        "play 64 0.50", "stop 64"));
}

TEST_F(SequenceDocumentTest, PlaysTheSelectedInterval)
{
    read(twoNotes());
    document_.selectInterval(3.0, 8.0);
    for (const auto& [position, begin] :
         {std::pair(0.0, 3.0), {3.0, 3.0}, {5.0, 5.0}, {8.0, 3.0}}) {
        document_.doScroll(position);
        document_.play();
        EXPECT_EQ(document_.getOffset(), begin) << "played from " << position;
        document_.play();
    }
    document_.doScroll(0.0);
    document_.setLoop(true);
    document_.play();
    EXPECT_THAT(tick(1.5), ElementsAre("setup 64 0.50", "play 64 0.50"));
    EXPECT_THAT(tick(4.0), ElementsAre("stop 60", "stop 64")) << "round again";
    EXPECT_EQ(document_.mode(), SequenceDocument::Mode::Playing);
    EXPECT_EQ(document_.getOffset(), 3.0);
    EXPECT_THAT(tick(1.5), ElementsAre("setup 64 0.50", "play 64 0.50"));
    document_.setLoop(false);
    EXPECT_THAT(tick(4.0), ElementsAre("stop 60", "stop 64"));
    EXPECT_EQ(document_.mode(), SequenceDocument::Mode::Stopped);
    EXPECT_EQ(document_.getOffset(), 3.0);
}

TEST_F(SequenceDocumentTest, LoopsOverAllOfItWhereNoIntervalIsSelected)
{
    read(twoNotes());
    document_.setLoop(true);
    document_.play();
    EXPECT_THAT(tick(45.0), ElementsAre("stop 60", "stop 64"));
    EXPECT_EQ(document_.getOffset(), 0.0);
    EXPECT_THAT(tick(2.5), ElementsAre("setup 60 1.00", "play 60 1.00"));
}

TEST_F(SequenceDocumentTest, StopSilencesTheNotesThatPlay)
{
    read(twoNotes());
    document_.play();
    tick(2.5);
    document_.play();
    EXPECT_THAT(calls_, ElementsAre("stop 60"));
    EXPECT_EQ(document_.stateOfNote(60), 2) << "the keyboard keeps its colours";
    EXPECT_NEAR(document_.getOffset(), 2.5, 1e-6);
    calls_.clear();
    document_.stop();
    EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(SequenceDocumentTest, PlaysWithoutAnInstrument)
{
    hasInstrument_ = false;
    read(twoNotes());
    document_.play();
    EXPECT_THAT(tick(2.5), IsEmpty());
    EXPECT_EQ(document_.stateOfNote(60), 2);
}

TEST_F(SequenceDocumentTest, IsEmptyWithASentenceAfterABrokenFile)
{
    read(twoNotes());
    EXPECT_EQ(document_.extent(), 44.0);
    EXPECT_EQ(document_.errorString(), "");
    read(twoNotes().substr(0, 40));
    EXPECT_THAT(document_.getSequence().notes(), IsEmpty());
    EXPECT_EQ(document_.extent(), 0.0);
    EXPECT_THAT(document_.errorString(), HasSubstr("document.mid"));
    read(twoNotes());
    EXPECT_EQ(document_.errorString(), "");
    EXPECT_EQ(document_.getSequence().notes().size(), 2U);
}

TEST_F(SequenceDocumentTest, ANewOneClearsTheHeldKeys)
{
    noteStates[60] = 1;
    const SequenceDocument another(*this);
    EXPECT_EQ(noteStates[60], 0);
}
