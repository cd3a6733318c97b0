#include "app/TuningCorrector.h"

#include "app/AppDelegate.h"
#include "base/Clock.h"
#include "base/File.h"
#include "preferences/Preferences.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/SineBank.h"
#include "support/Stereo.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// By how much keys of a bank are out of tune, in cents.
int scattered(int key)
{
    return key * 7 % 31 - 15;
}

bool never()
{
    return false;
}

bool always()
{
    return true;
}

std::filesystem::path cacheFolder()
{
    return std::filesystem::path(
               QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
                   .toStdString()) /
           "velmora" / "tuning";
}

class TuningCorrectorTest : public testing::Test {
protected:
    TuningCorrectorTest()
    {
        std::filesystem::remove_all(cacheFolder());
        setPrefBool("CorrectTuning", true);
    }

    ~TuningCorrectorTest() override { setPrefBool("CorrectTuning", true); }

    /// The only file of the cache; empty if there is none.
    static std::filesystem::path cached()
    {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(cacheFolder(), error))
            return entry.path();
        return {};
    }

    OrganFolder folder_;
    std::filesystem::path bank_ = folder_.write("bank.sf2", sineBank(scattered, 44'010));
};

/// An application that plays a bank.
class PlayedBank {
public:
    explicit PlayedBank(const std::filesystem::path& bank)
    {
        app.tunings().addBuiltins();
        auto document = std::make_unique<InstrumentDocument>();
        RecordingHost host;
        EXPECT_TRUE(document->read(bank, InstrumentFormat::SoundFont, {}, host))
            << document->errorString();
        instrument_ = document->instrument();
        app.addInstrument(std::move(document));
    }

    /// Returns the greatest error of some keys, in cents.
    double worst()
    {
        double result = 0.0;
        for (int key = 43; key < 90; key += 23) {
            const double hertz = equal.getPitch(static_cast<unsigned long>(key)) / 2.0;
            instrument_->play(key, 0.5F);
            rendered(*instrument_->source(), 4'800);
            const Stereo sound = rendered(*instrument_->source(), 24'000);
            instrument_->silence();
            rendered(*instrument_->source(), 4'800);
            const double off = cents(measuredHertz(sound.left, 48'000, hertz), hertz);
            result = std::max(result, std::fabs(off));
        }
        return result;
    }

    /// Handles events until the keys are in tune, for ten seconds at most.
    bool comesIntoTune()
    {
        const double start = getTime();
        while (worst() > 0.3 && getTime() - start < 60.0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return worst() <= 0.3;
    }

    AppDelegate app;

private:
    Instrument* instrument_ = nullptr;
};

} // namespace

TEST_F(TuningCorrectorTest, CorrectsEveryProgramThatIsSelected)
{
    PlayedBank played(bank_);
    EXPECT_GT(played.worst(), 10.0);
    TuningCorrector corrector(played.app);
    corrector.update();
    EXPECT_TRUE(played.comesIntoTune());
    played.app.selectProgram(1);
    EXPECT_GT(played.worst(), 10.0);
    played.app.selectProgram(0);
    EXPECT_LT(played.worst(), 0.3) << "while the other program is measured";
    played.app.selectProgram(1);
    EXPECT_TRUE(played.comesIntoTune());

    setPrefBool("CorrectTuning", false);
    played.app.playing().read();
    EXPECT_GT(played.worst(), 10.0) << "once the correction is turned off";
}

TEST_F(TuningCorrectorTest, KeepsWhatItHasMeasuredByTheContentsOfTheBank)
{
    const BankProgram program{bank_, 0, 0};
    const auto measured = correctionsFor(program, never);
    ASSERT_TRUE(measured);
    const double rate = 1200.0 * std::log2(44'010.0 / 44'000.0);
    for (const int key : {36, 60, 61, 96})
        EXPECT_NEAR((*measured)[static_cast<std::size_t>(key)], -scattered(key) - rate, 0.1)
            << "key " << key;
    EXPECT_EQ(correctionsFor(program, always), measured) << "it is not measured again";

    folder_.write("copy.sf2", sineBank(scattered, 44'010));
    EXPECT_EQ(correctionsFor({folder_.path() / "copy.sf2", 0, 0}, always), measured);
    EXPECT_FALSE(correctionsFor({bank_, 0, 1}, always)) << "another program";
    folder_.write("bank.sf2", sineBank([](int) { return 5; }));
    const auto other = correctionsFor(program, never);
    ASSERT_TRUE(other) << "another bank of that name";
    EXPECT_NEAR(other->at(60), -5.0, 0.1);
}

TEST_F(TuningCorrectorTest, MeasuresAgainIfTheKeptFileIsDamaged)
{
    const BankProgram program{bank_, 0, 0};
    const auto measured = correctionsFor(program, never);
    const std::string whole = readTextFile(cached());
    for (const std::string& damaged :
         {std::string(), std::string("{}"), whole.substr(0, whole.size() / 2), "[" + whole + "]",
          std::regex_replace(whole, std::regex("\\[[^,]*,"), "["),
          std::regex_replace(whole, std::regex("\\[[^,]*,"), "[51,"),
          std::regex_replace(whole, std::regex("\"version\":."), "\"version\":0")}) {
        std::ofstream(cached()) << damaged;
        EXPECT_FALSE(correctionsFor(program, always)) << damaged.substr(0, 60);
    }
    EXPECT_EQ(correctionsFor(program, never), measured);
    EXPECT_EQ(readTextFile(cached()), whole);
}

TEST_F(TuningCorrectorTest, KeepsNothingOfACancelledMeasurement)
{
    int asked = 0;
    EXPECT_FALSE(correctionsFor({bank_, 0, 0}, [&] { return ++asked == 20; }));
    EXPECT_TRUE(cached().empty());
    EXPECT_FALSE(correctionsFor({folder_.path() / "missing.sf2", 0, 0}, never));
    EXPECT_TRUE(cached().empty());

    PlayedBank played(bank_);
    {
        TuningCorrector corrector(played.app);
        corrector.update();
    }
    EXPECT_TRUE(cached().empty()) << "an application that quits does not wait";
    TuningCorrector corrector(played.app);
    corrector.update();
    played.app.selectProgram(1); // while the first is measured
    EXPECT_TRUE(played.comesIntoTune());
}

} // namespace velmora
