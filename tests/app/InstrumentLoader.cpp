#include "app/InstrumentLoader.h"

#include "app/AppDelegate.h"
#include "sound/OrganInstrument.h"
#include "support/OrganFolder.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

namespace {

class SilentPlayer : public MusicDevice {
public:
    void midiEvent(int /*status*/, int /*data1*/, int /*data2*/) override {}
};

/// Two stops of a pipe each; a second pipe of the second stop is missing.
class InstrumentLoaderTest : public testing::Test {
protected:
    InstrumentLoaderTest()
    {
        folder_.writeSine("a.wav", 261.6);
        folder_.writeSine("b.wav", 261.6);
        path_ = folder_.write("organ.organ",
                              "[Organ]\nChurchName=Church\n"
                              "[Manual001]\nFirstAccessibleKeyMIDINoteNumber=36\n"
                              "Stop001=1\nStop002=2\n"
                              "[Stop001]\nName=First\nPipe026=a.wav\n"
                              "[Stop002]\nName=Second\nPipe026=b.wav\nPipe027=gone.wav\n");
        app_.tunings().addBuiltins();
        app_.makeMIDIPlayer(std::make_unique<SilentPlayer>());
        app_.tunings().select("Quartercomma Meantone");
        app_.loadInBackground();
        QObject::connect(&app_.loader(), &InstrumentLoader::finished,
                         [this](const InstrumentDocument& document) {
                             EXPECT_FALSE(document.loadingProgress());
                             finished_.push_back(&document);
                         });
        QObject::connect(&app_.loader(), &InstrumentLoader::progressed,
                         [this](const QString&, int percent) { percent_ = percent; });
    }

    /// Returns the organ with its first stop, and nothing else, loaded.
    std::unique_ptr<InstrumentDocument> read()
    {
        auto document = std::make_unique<InstrumentDocument>();
        EXPECT_TRUE(document->read(path_, InstrumentFormat::Hauptwerk1, {}, app_))
            << document->errorString();
        EXPECT_EQ(document->report().pipes, 1U);
        return document;
    }

    InstrumentDocument& listed() { return *app_.instruments()[1]; }

    void finishLoading()
    {
        while (listed().loadingProgress())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    const Sample& pipe(std::size_t stop)
    {
        const auto ranks = std::span(sampledRanksOf(*listed().instrument())->stops());
        for (const Sample& sample : ranks[stop].samples)
            if (sample.source() != 0)
                return sample;
        return ranks[stop].samples.front();
    }

    OrganFolder folder_;
    std::filesystem::path path_;
    AppDelegate app_;
    std::vector<const InstrumentDocument*> finished_;
    int percent_ = -1;
};

} // namespace

TEST_F(InstrumentLoaderTest, LoadsTheRestAndTunesIt)
{
    app_.addInstrument(read());
    const std::int64_t before = listed().size();
    EXPECT_EQ(pipe(1).source(), 0U);
    finishLoading();
    EXPECT_THAT(finished_, ElementsAre(&listed()));
    EXPECT_EQ(percent_, 100);
    EXPECT_EQ(listed().report().pipes, 2U);
    EXPECT_EQ(listed().report().ranks, 2U);
    EXPECT_THAT(listed().report().skipped,
                ElementsAre(Pair(HasSubstr("gone.wav"), HasSubstr("missing"))));
    EXPECT_GT(listed().size(), before);
    EXPECT_NE(pipe(1).source(), 0U);
    EXPECT_EQ(pipe(1).factor(), pipe(0).factor());
    EXPECT_NE(pipe(1).factor(), 1.0F);
}

TEST_F(InstrumentLoaderTest, LetsAHeldKeySpeakOnAStopThatComesLater)
{
    app_.addInstrument(read());
    app_.organ().draw(1, true);
    app_.player().keyOn(61, 1.0F);
    EXPECT_FALSE(pipe(1).isPlaying());
    finishLoading();
    EXPECT_TRUE(pipe(1).isPlaying());
    app_.player().keyOff(61);
    EXPECT_TRUE(pipe(1).released());
}

TEST_F(InstrumentLoaderTest, LeavesOutWhatIsNotLoadedWhenTheUserStopsIt)
{
    const auto organ = [&]() -> const OrganInstrument& {
        return dynamic_cast<const OrganInstrument&>(*listed().instrument());
    };
    app_.addInstrument(read());
    EXPECT_EQ(organ().loadState(0), LoadState::Loaded);
    EXPECT_EQ(organ().loadState(1), LoadState::Loading);
    EXPECT_TRUE(app_.loader().isLoading());
    app_.loader().stop();
    EXPECT_FALSE(app_.loader().isLoading());
    EXPECT_THAT(finished_, ElementsAre(&listed()));
    EXPECT_EQ(organ().loadState(1), LoadState::Stopped);
    EXPECT_THAT(listed().report().notLoaded, ElementsAre(Pair("Second", LoadState::Stopped)));
    app_.player().keyOn(61, 1.0F);
    EXPECT_TRUE(pipe(0).isPlaying());
    app_.player().keyOff(61);
}

TEST_F(InstrumentLoaderTest, ForgetsWhatIsReplacedOrUnloaded)
{
    app_.addInstrument(read());
    app_.replaceInstrument(1, read());
    finishLoading();
    EXPECT_THAT(finished_, ElementsAre(&listed())) << "the one in the place of the first";

    app_.replaceInstrument(1, read());
    ASSERT_TRUE(app_.unloadInstrument(1));
    EXPECT_EQ(percent_, 100);
    EXPECT_FALSE(listed().loadingProgress());
    QCoreApplication::processEvents();
    EXPECT_EQ(finished_.size(), 1U);

    ASSERT_TRUE(app_.selectInstrument(1));
    finishLoading();
    EXPECT_EQ(finished_.size(), 2U);
    EXPECT_EQ(listed().report().pipes, 2U);
}

} // namespace velmora
