#include "app/Tunings.h"

#include "app/AppDelegate.h"
#include "support/RecordingInstrument.h"
#include "tuning/Tuning.h"

#include <gtest/gtest.h>

#include <array>

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
        std::array<double, 12> cents{};
        for (unsigned i = 0; i < cents.size(); ++i)
            cents[i] = 100.0 * i;
        cents[1] = cSharp;
        return TuningDocument::makeEdited(original, cents);
    }

    AppDelegate application_;
    Calls calls_;
    RecordingInstrument instrument_{calls_};
};

} // namespace

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
