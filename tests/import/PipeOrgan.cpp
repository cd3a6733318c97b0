#include "import/PipeOrgan.h"

#include "import/FolderTree.h"
#include "import/Import.h"
#include "import/InstrumentDocument.h"
#include "import/pipePitch.h"
#include "import/sampleChunks.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <gmock/gmock.h>
#include <spdlog/fmt/fmt.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

constexpr double kRate = 48'000.0;

/// The sampler chunk of a sound with a note and loops, whose last frames are inclusive.
std::string sampler(double note, const std::vector<std::pair<std::size_t, std::size_t>>& loops)
{
    const auto unity = static_cast<std::size_t>(note);
    const auto fraction = static_cast<std::size_t>((note - static_cast<double>(unity)) * 0x1p32);
    std::string body = riff::numbers({0, 0, 0, unity, fraction, 0, 0, loops.size(), 0}, 4);
    for (const auto& [begin, last] : loops)
        body += riff::numbers({0, 0, begin, last, 0, 0}, 4);
    return riff::chunk("smpl", body);
}

std::string cue(const std::vector<std::size_t>& frames)
{
    std::string body = riff::numbers({frames.size()}, 4);
    for (const std::size_t frame : frames)
        body += riff::numbers({0, 0, 0, 0, 0, frame}, 4);
    return riff::chunk("cue ", body);
}

TEST(SampleChunks, AreReadAsFarAsTheyGo)
{
    const auto read = [](const std::string& chunks) {
        const std::string file =
            riff::file("WAVE", riff::wave(riff::points(sine(440, 0.1)), 48000) + chunks);
        return readSampleChunks(std::as_bytes(std::span(file)));
    };
    const SampleChunks whole =
        read(sampler(60.25, {{10, 19}, {5, 5}, {100, 299}}) + cue({50, 400, 350}));
    EXPECT_EQ(whole.note, 60.25);
    EXPECT_THAT(whole.loops, ElementsAre(Loop{10, 20}, Loop{100, 300}));
    EXPECT_EQ(whole.cue, 350U) << "is the first behind the loops";
    EXPECT_EQ(read(cue({50, 20})).cue, 20U) << "without loops";

    const std::string cut = sampler(61.0, {{10, 19}, {100, 299}});
    const SampleChunks part = read(cut.substr(0, cut.size() - 4));
    EXPECT_EQ(part.note, 61.0);
    EXPECT_THAT(part.loops, ElementsAre(Loop{10, 20}));
    EXPECT_EQ(read(sampler(60.0, {}).substr(0, 30)).note, std::nullopt);
    EXPECT_EQ(read(riff::chunk("cue ", "\xFF\xFF\xFF\xFF")).cue, std::nullopt);
}

/// Returns the notes of the keys 60 to 65 of a rank from those in its files.
std::vector<double> notesOf(std::vector<std::optional<double>> written, double harmonicNumber = 8)
{
    std::vector<RecordedPitch> recordings;
    for (std::size_t i = 0; i < written.size(); ++i) {
        PipeOrgan::Pipe pipe;
        pipe.key = 60 + static_cast<int>(i);
        pipe.harmonicNumber = harmonicNumber;
        recordings.push_back({expectedNote(pipe), written[i], harmonicNumber});
    }
    const RankPitch pitch(recordings);
    std::vector<double> result;
    for (const RecordedPitch& recording : recordings)
        result.push_back(pitch.noteOf(recording));
    return result;
}

TEST(RankPitch, UnderstandsTheNotesInTheFiles)
{
    EXPECT_THAT(notesOf({60.1, 61.2, 70.0, {}, 63.8}), ElementsAre(60.1, 61.2, 62, 63, 63.8))
        << "one that is far off is no information";
    EXPECT_THAT(notesOf({60, 60, 60, 60, 60}), ElementsAre(60, 61, 62, 63, 64)) << "all defaults";
    EXPECT_THAT(notesOf({72.1, 73, 74, 75, 76}, 16), ElementsAre(72.1, 73, 74, 75, 76));
    EXPECT_THAT(notesOf({60.1, 61, 62, {}, 64}, 16), ElementsAre(72.1, 73, 74, 75, 76))
        << "written for the keys of a 4' stop";
    EXPECT_THAT(notesOf({61.1, 62, 63, 64, 64.9, {}}), ElementsAre(61.1, 62, 63, 64, 64.9, 66))
        << "an organ a semitone above today's pitch";
    const RecordedPitch borrowed{61.0, 60.1};
    EXPECT_EQ(RankPitch({}).noteOf(borrowed), 61.0);
    EXPECT_EQ(RankPitch({}).noteOf(borrowed, std::vector{60.0, 61.0}), 60.1)
        << "the file is that of another key";
}

/// An organ of sines in two packages. The Great has an 8' stop, the Swell a 4' stop and a rank that
/// borrows the samples of the 8' stop; all pipes are out of tune. The first stop has no files.
class SineOrgan {
public:
    SineOrgan()
    {
        for (int key = kLowest; key <= kHighest; ++key)
            addPipes(key);
        tables_.insert(
            tables_.end(),
            {{"_General", {"Identification_Name=Sines,Identification_UniqueOrganID=7"}},
             {"Division", {"a=1,b=Great", "a=2,b=Swell"}},
             {"Stop",
              {"a=2,b=Gone,c=1", "a=1,b=Principal 8',c=1", "a=3,b=Octave 4',c=2",
               "a=4,b=Borrowed 8',c=2"}},
             {"StopRank", {"a=1,d=1", "a=2,d=3", "a=3,d=2", "a=4,d=4"}},
             {"Rank", {"a=1,b=Principal", "a=2,b=Octave", "a=3,b=Gone", "a=4,b=Borrowed"}},
             {"Pipe_SoundEngine01", pipes_},
             {"Pipe_SoundEngine01_Layer", layers_},
             {"Pipe_SoundEngine01_AttackSample", attacks_},
             {"Sample", samples_}});
    }

    std::filesystem::path write() const
    {
        return folder_.write("OrganDefinitions/sines.Organ_Hauptwerk_xml",
                             xmlOrganDefinition(tables_));
    }

    static constexpr int kLowest = 57;
    static constexpr int kHighest = 72;

private:
    void addPipes(int key)
    {
        add(key, 1, 8, 10, "p8");
        add(key, 2, 16, 20, "p4");
        add(key, 3, 8, 10, key == kLowest ? "../outside" : "none");
        add(key, 4, 8, 10, "");
    }

    /// Adds a pipe. If `folder` is empty, its sample is that of the first rank. Its own file has a
    /// second of sound with a loop of about 0.2 s, and from 0.8 s a release that is half as loud.
    void add(int key, int rank, int harmonic, int package, const std::string& folder)
    {
        const int id = 1000 * rank + key;
        const std::string file = fmt::format("{}/{}.wav", folder, key);
        pipes_.push_back(fmt::format("a={},b={},d={},f={}", id, rank, key, harmonic));
        layers_.push_back(fmt::format("a={0},b={0}", id));
        attacks_.push_back(fmt::format("b={},c={}", id, folder.empty() ? 1000 + key : id));
        if (folder.empty())
            return;
        samples_.push_back(fmt::format("a={},b={},c={}", id, package, file));
        if (rank == 3)
            return;
        const double note = key + 12.0 * std::log2(harmonic / 8.0) + 0.01 * (key % 7 - 3);
        const double period = kRate / hertzOfNote(note);
        Pcm pcm = sine(hertzOfNote(note), 1.0);
        for (std::size_t i = kRelease; i < pcm.samples.size(); ++i)
            pcm.samples[i] = static_cast<std::int16_t>(pcm.samples[i] / 2);
        const std::size_t begin = 24'000;
        const auto length = static_cast<std::size_t>(
            std::lround(period * std::round(nearestLoop(period) / period)));
        folder_.write(fmt::format("OrganInstallationPackages/{:06}/{}", package, file),
                      riff::file("WAVE", riff::wave(riff::points(pcm), 48000) +
                                             sampler(note, {{begin, begin + length - 1}}) +
                                             cue({kRelease})));
    }

    /// Returns the length near 0.2 s that is the closest to whole periods and to whole frames.
    static double nearestLoop(double period)
    {
        double best = 0.0;
        double error = 1.0;
        for (double periods = std::round(9'000.0 / period); periods * period < 11'000; ++periods) {
            const double length = periods * period;
            if (std::abs(length - std::round(length)) < error) {
                best = length;
                error = std::abs(length - std::round(length));
            }
        }
        return best;
    }

    static constexpr std::size_t kRelease = 38'400;

    OrganFolder folder_;
    std::vector<std::string> pipes_, layers_, attacks_, samples_;
    std::vector<ObjectList> tables_;
};

TEST(PipeOrgan, SoundsInTuneForAsLongAsItsKeysAreHeld)
{
    const SineOrgan organ;
    RecordingHost host;
    InstrumentDocument document;
    ASSERT_TRUE(document.read(organ.write(), InstrumentFormat::HauptwerkXml, {}, host))
        << document.errorString();
    EXPECT_EQ(document.name(), "Sines");
    EXPECT_EQ(document.report().ranks, 3U);
    EXPECT_EQ(document.report().pipes, 3U * 16U);
    EXPECT_EQ(document.report().samples, 2U * 32U) << "an attack and a release for each file";
    EXPECT_THAT(
        document.report().skipped,
        ElementsAre(Pair(HasSubstr("Gone: "), HasSubstr("is missing; the same holds for 14 other")),
                    Pair(HasSubstr("Gone: "), HasSubstr("lies outside the folder"))));

    const Temperament meantone = Temperament::Meantone();
    Instrument& instrument = *document.instrument();
    instrument.tune(meantone, 0, 127);
    for (int key = SineOrgan::kLowest; key <= SineOrgan::kHighest; ++key) {
        const double hertz = meantone.getPitch(static_cast<unsigned long>(key)) / 2.0;
        instrument.play(key, 1.0F);
        const Stereo held = rendered(*instrument.source(), 96'000);
        EXPECT_NEAR(cents(measuredHertz(std::span(held.left).subspan(48'000), kRate, hertz), hertz),
                    0.0, 0.25)
            << key;
        const float level = peak(std::span(held.left).subspan(48'000));
        EXPECT_NEAR(level, peak(std::span(held.left).subspan(4'800, 9'600)), 0.02F * level) << key;
        instrument.stop(key);
        const Stereo released = rendered(*instrument.source(), 24'000);
        EXPECT_GT(peak(std::span(released.left).subspan(2'400, 2'400)), 0.2F * level) << key;
        EXPECT_EQ(peak(std::span(released.left).subspan(20'000)), 0.0F) << key;
    }
    instrument.play(SineOrgan::kLowest - 1, 1.0F);
    EXPECT_EQ(peak(rendered(*instrument.source(), 4'800).left), 0.0F) << "the rank has no such key";
}

/// A host that takes an instrument before all of it is loaded.
class ImpatientHost : public RecordingHost {
public:
    bool loadsInBackground() const override { return true; }
};

TEST(PipeOrgan, CanBePlayedWhileItIsLoaded)
{
    const SineOrgan organ;
    ImpatientHost host;
    InstrumentDocument document;
    ASSERT_TRUE(document.read(organ.write(), InstrumentFormat::HauptwerkXml, {}, host))
        << document.errorString();
    EXPECT_EQ(document.report().pipes, 2U * 16U) << "the first stop of each division";
    ASSERT_TRUE(document.loadingProgress());
    EXPECT_LT(*document.loadingProgress(), 1.0);

    Instrument& instrument = *document.instrument();
    AudioSource& source = *instrument.source();
    instrument.tune(equal, 0, 127);
    instrument.play(60, 1.0F);
    std::atomic<int> silent{0};
    std::jthread audio([&](const std::stop_token& stop) {
        while (!stop.stop_requested())
            silent += peak(rendered(source, 480).left) == 0.0F ? 1 : 0;
    });
    int changes = 0;
    for (int i = 0; document.loadingProgress(); ++i) {
        document.continueLoading([&](std::size_t, const auto& change) {
            change();
            instrument.tune(equal, 0, 127);
            ++changes;
        });
        instrument.play(61 + i % 5, 1.0F);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        instrument.stop(61 + i % 5);
    }
    audio = {};
    EXPECT_EQ(changes, 2) << "the ranks that were left";
    EXPECT_EQ(silent, 0) << "nothing interrupts the sound";
    EXPECT_EQ(document.report().ranks, 3U);
    EXPECT_EQ(document.report().pipes, 3U * 16U);
    EXPECT_EQ(document.report().samples, 64U);

    ASSERT_TRUE(document.reload(host));
    document.unload();
    EXPECT_FALSE(document.loadingProgress()) << "unloading ends it";
}

} // namespace

/// A host whose user does not want the tuning to be corrected.
class StrictHost : public RecordingHost {
    bool correctsTuning() const override { return false; }
};

TEST(PipeOrgan, MeasuresRecordingsWithoutAPitch)
{
    struct Recording {
        int key;
        double cents;    ///< Of its tone above the key.
        double second;   ///< Of a second tone.
        double expected; ///< How it is played.
    };
    const Recording recordings[] = {{36, 20.3, 20.3, 20.3}, {60, -45.0, -45.0, -45.0},
                                    {61, 3.7, 3.7, 3.7},    {62, 80.0, 80.0, 0.0},
                                    {63, 5.0, 35.0, 0.0},   {96, -8.2, -8.2, -8.2}};
    const OrganFolder folder;
    PipeOrgan organ;
    organ.tree = openFolder(folder.path());
    std::vector<PipeOrgan::Pipe>& pipes = organ.ranks.emplace_back().pipes;
    for (const Recording& recording : recordings) {
        PipeOrgan::Pipe& pipe = pipes.emplace_back();
        pipe.key = recording.key;
        pipe.attacks.emplace_back().file = organ.files.size();
        organ.files.push_back(fmt::format("{}.wav", recording.key));
        Pcm tone = sine(hertzOfNote(recording.key + recording.cents / 100.0), 1.5);
        const Pcm other = sine(hertzOfNote(recording.key + recording.second / 100.0), 1.5);
        for (std::size_t i = 0; i < tone.samples.size(); ++i)
            tone.samples[i] = static_cast<std::int16_t>(tone.samples[i] + other.samples[i]);
        folder.write(organ.files.back(), riff::file("WAVE", riff::wave(riff::points(tone), 48000)));
    }
    const auto errors = [&](InstrumentHost& host, bool isExpected) {
        Import import(host, {});
        loadPipeOrgan(organ, import);
        for (const Recording& recording : recordings) {
            const auto key = static_cast<std::size_t>(recording.key);
            const double root = import.instrument->stops()[0].samples[key].rootPitch();
            EXPECT_NEAR(cents(root, 2.0 * hertzOfNote(recording.key)),
                        isExpected ? 0.0 : recording.expected, 0.1)
                << "key " << key;
        }
    };
    RecordingHost host;
    errors(host, false);
    StrictHost strict;
    errors(strict, true);
}

TEST(PipeOrgan, OpensWithTheFirstSoundingStopOfEachDivision)
{
    const OrganFolder folder;
    folder.writeSine("a.wav", 261.6);
    PipeOrgan organ;
    organ.tree = openFolder(folder.path());
    organ.files = {"gone.wav", "a.wav"};
    organ.console.divisions.resize(2);
    for (const std::size_t file : {0U, 1U, 1U}) {
        PipeOrgan::Pipe pipe;
        pipe.key = 60;
        pipe.attacks.emplace_back().file = file;
        organ.ranks.emplace_back().pipes = {pipe};
    }
    const auto addStop = [&](std::size_t division, std::size_t rank) {
        organ.console.stops.push_back({"", division, {{60, 1, rank, 60}}, false});
    };
    addStop(0, 0);
    addStop(0, 1);
    addStop(0, 1);
    addStop(1, 2);
    const auto drawnBy = [&](InstrumentHost& host) {
        Import import(host, {});
        loadPipeOrgan(organ, import);
        std::vector<bool> drawn;
        for (const ConsoleDefinition::Stop& stop : import.console->stops)
            drawn.push_back(stop.isDrawn);
        return drawn;
    };
    RecordingHost patient;
    EXPECT_THAT(drawnBy(patient), ElementsAre(false, true, false, true));
    ImpatientHost impatient;
    EXPECT_THAT(drawnBy(impatient), ElementsAre(false, true, false, true));
}

} // namespace velmora
