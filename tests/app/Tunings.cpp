#include "app/Tunings.h"

#include "app/AppDelegate.h"
#include "app/tuningWarning.h"
#include "audio/Synthesizer.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/RecordingInstrument.h"
#include "tuning/TuningShape.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

namespace {

class TuningsTest : public testing::Test {
protected:
    TuningsTest()
    {
        application_.tunings().addBuiltins();
        application_.setInstrument(instrument_, "Recorder");
    }

    double centsOfCSharp()
    {
        double cents = 0.0;
        application_.player().with([&](const Instrument&, const Temperament& temperament) {
            cents = temperament.getTuning(1).cent();
        });
        return cents;
    }

    static std::unique_ptr<TuningDocument> edited(const TuningDocument& original, double cSharp)
    {
        TuningShape shape = *shapeOf(original.temperament());
        shape.scale.pitches[0] = Cent(cSharp);
        return TuningDocument::makeEdited(original, shape, "Equal (edited)");
    }

    AppDelegate application_;
    Calls calls_;
    RecordingInstrument instrument_{calls_};
};

} // namespace

TEST_F(TuningsTest, LeaveKeysSilentThatTheirMappingLeavesOut)
{
    Tunings& tunings = application_.tunings();
    Player& player = application_.player();
    const OrganFolder folder;
    EXPECT_EQ(tunings.setMapping(folder.write("a.kbm", "2\n0\n127\n60\n60\n300.\n12\n0\nx\n")), "");
    calls_.clear();
    for (const int key : {60, 61, 62}) {
        player.keyOn(key, 0.5F);
        player.keyOff(key);
    }
    EXPECT_EQ(calls_, (Calls{"play 60 0.50", "stop 60", "stop 61", "play 62 0.50", "stop 62"}));
    EXPECT_EQ(tunings.setMapping(folder.write("b.kbm", "no\n")),
              "b.kbm, line 1, column 1: \"no\" is not the size of the mapping, a number from 0 to "
              "128");
    EXPECT_EQ(tunings.current()->mappingPath(), folder.path() / "a.kbm") << "as it was";
    EXPECT_EQ(tunings.setMapping({}), "");
    calls_.clear();
    player.keyOn(61, 0.5F);
    EXPECT_EQ(calls_, Calls{"play 61 0.50"});
}

TEST_F(TuningsTest, SayWhereGeneralMidiCannotFollow)
{
    Tunings& tunings = application_.tunings();
    const OrganFolder folder;
    std::string hertz = "261.6\n";
    for (int i = 0; i < 11; ++i)
        hertz += std::to_string(261.6 * std::exp2(i / 12.0 + 0.3 / 12.0)) + "\n";
    auto document = std::make_unique<TuningDocument>();
    ASSERT_TRUE(document->read(folder.write("a.mtx", hertz + "0\n"), TuningFormat::Frequencies));
    tunings.put(std::move(document));
    tunings.select("a.mtx");
    EXPECT_EQ(tuningWarning(application_), "") << "every other instrument can";
    application_.makeMIDIPlayer(std::make_unique<Synthesizer>(48000.0, std::vector{kBank}));
    EXPECT_EQ(tuningWarning(application_), "");
    application_.playing().usePlainReading();
    EXPECT_EQ(tuningWarning(application_), "in the plain reading, General MIDI plays some keys of "
                                           "\"a.mtx\" 300 cents out of tune");
    tunings.select("Quartercomma Meantone");
    EXPECT_EQ(tuningWarning(application_), "");
}

TEST_F(TuningsTest, AreEditedInACopyOfTheirOwn)
{
    Tunings& tunings = application_.tunings();
    const std::size_t count = tunings.names().size();
    tunings.replace(edited(*tunings.current(), 90.0));
    EXPECT_EQ(tunings.name(), "Equal") << "it was not the current one";
    EXPECT_EQ(tunings.names().size(), count + 1);
    ASSERT_TRUE(tunings.select("Equal (edited)"));
    calls_.clear();
    tunings.replace(edited(*tunings.current(), 80.0));
    EXPECT_EQ(calls_, Calls{"tune 0 127"});
    EXPECT_EQ(centsOfCSharp(), 80.0);
    EXPECT_EQ(tunings.names().size(), count + 1);
    EXPECT_EQ(tunings.lastingName(), "Equal") << "the copy has no file";
}

TEST_F(TuningsTest, CanBeHeardBeforeTheyAreChosen)
{
    Tunings& tunings = application_.tunings();
    {
        const auto candidate = edited(*tunings.current(), 70.0);
        tunings.preview(candidate.get());
    }
    EXPECT_EQ(centsOfCSharp(), 70.0);
    EXPECT_EQ(tunings.name(), "Equal");
    tunings.preview(nullptr);
    EXPECT_EQ(centsOfCSharp(), 100.0);
}

} // namespace velmora
