#include "platform/MidiBytes.h"
#include "sequencer/SequenceClock.h"
#include "support/SequenceTest.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <gmock/gmock.h>

#include <fstream>

namespace {

using namespace std::chrono_literals;

class SequenceDocumentTest : public SequenceTest {
protected:
    SequenceDocumentTest() { read(twoNotes()); }

    /// Key 60 from step 2 to 6, key 64 from 4 to 12; the extent is 44.
    static std::string twoNotes()
    {
        return midi::file(
            midi::on(32, 60) + midi::on(32, 64, 64) + midi::off(32, 60) + midi::off(96, 64), 128);
    }

    void read(const std::string& content)
    {
        const auto path = std::filesystem::path(testing::TempDir()) / "document.mid";
        std::ofstream(path, std::ios::binary) << content;
        document_.readFromURL(path);
    }

    /// One tick of the timer after so many steps calls this.
    void expectTick(double steps, const Calls& calls)
    {
        tick(steps);
        EXPECT_EQ(std::exchange(calls_, {}), calls) << "at step " << document_.getOffset();
    }
};

} // namespace

TEST_F(SequenceDocumentTest, PlaysToTheEndAndGoesBackToTheBeginning)
{
    double shown = -1.0;
    QObject::connect(&document_, &SequenceDocument::frame, [&] { shown = document_.getOffset(); });
    expectTick(100.0, {}); // before it plays
    document_.play();
    expectTick(1.5, {});
    expectTick(1.0, {"setup 60", "play 60 1.00"});
    EXPECT_EQ(document_.stateOfNote(60), 2);
    expectTick(2.0, {"setup 64", "play 64 0.50"});
    expectTick(2.0, {"stop 60"});
    EXPECT_EQ(document_.stateOfNote(60), 0);
    expectTick(6.0, {"stop 64"});
    expectTick(31.0, {});
    EXPECT_NEAR(document_.getOffset(), 43.5, 1e-6);
    expectTick(1.0, {"stop 60", "stop 64"});
    EXPECT_EQ(document_.mode(), kStopped);
    EXPECT_EQ(document_.getOffset(), 0.0);
    EXPECT_EQ(shown, 0.0) << "no further tick shows it";

    document_.setLoop(true);
    document_.play();
    expectTick(20.0,
               {"setup 60", "play 60 1.00", "stop 60", "setup 64", "play 64 0.50", "stop 64"});
    expectTick(25.0, {"stop 60", "stop 64"});
    expectTick(2.5, {"setup 60", "play 60 1.00"}); // round again
    document_.play();
    document_.stop();
    EXPECT_EQ(calls_, Calls{"stop 60"}) << "once";
    EXPECT_EQ(document_.stateOfNote(60), 2) << "the keyboard keeps its colours";
    EXPECT_NEAR(document_.getOffset(), 2.5, 1e-6);
}

TEST_F(SequenceDocumentTest, PlaysTheSelectedInterval)
{
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
    for (const bool loop : {true, false}) {
        document_.setLoop(loop);
        expectTick(1.5, {"setup 64", "play 64 0.50"});
        expectTick(4.0, {"stop 60", "stop 64"});
        EXPECT_EQ(document_.mode() == kStopped, !loop);
        EXPECT_EQ(document_.getOffset(), 3.0);
    }
}

TEST_F(SequenceDocumentTest, TicksByItselfOnlyWhileItPlays)
{
    SequenceClock clock(document_);
    int frames = 0;
    QObject::connect(&document_, &SequenceDocument::frame, [&] { ++frames; });
    const auto framesWithin = [&](auto time) {
        frames = 0;
        for (QDeadlineTimer end(time); !end.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return frames;
    };
    EXPECT_EQ(framesWithin(50ms), 0);
    document_.play();
    const int inTime = framesWithin(200ms);
    EXPECT_TRUE(inTime > 2 && inTime < 15) << inTime;
    document_.play();
    EXPECT_EQ(framesWithin(50ms), 0);
}

TEST_F(SequenceDocumentTest, IsEmptyWithASentenceAfterABrokenFile)
{
    EXPECT_EQ(document_.extent(), 44.0);
    read(twoNotes().substr(0, 40));
    EXPECT_TRUE(document_.getSequence().notes().empty());
    EXPECT_EQ(document_.extent(), 0.0);
    EXPECT_THAT(document_.errorString(), testing::HasSubstr("document.mid"));
    read(twoNotes());
    EXPECT_EQ(document_.errorString(), "");
    EXPECT_EQ(document_.getSequence().notes().size(), 2U);
}
