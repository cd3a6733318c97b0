#include "import/MemoryNeeds.h"

#include "import/FolderTree.h"
#include "import/Import.h"
#include "support/OrganFolder.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>
#include <sndfile.h>

namespace velmora {

using testing::ElementsAre;
using testing::Pair;

namespace {

constexpr std::uint64_t kMega = 1 << 20;

/// Writes five seconds of a sound; some of it is packed.
void writeSound(const std::filesystem::path& path, int format, int channels)
{
    SF_INFO info{0, 48'000, channels, format, 0, 0};
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    const Pcm sound = sine(440.0, 5.0);
    sf_writef_short(file, sound.samples.data(), 240'000 / channels);
    sf_close(file);
}

/// What becomes of an organ of two ranks that share a file.
struct Outcome {
    std::string said = "fits";
    std::vector<ImportOptions> fitting;
    std::vector<PlannedRank> plan;
};

/// Plans the organ with so much memory. Its first rank is drawn, by the second stop.
Outcome planned(const OrganFolder& folder, std::uint64_t free, ImportOptions options = {})
{
    PipeOrgan organ;
    organ.tree = openFolder(folder.path());
    organ.files = {"a.wav", "b.wav", "c.flac"};
    for (const std::vector<std::size_t>& files : {std::vector<std::size_t>{0, 1}, {1, 2}}) {
        PipeOrgan::Rank& rank = organ.ranks.emplace_back();
        for (const std::size_t file : files)
            rank.pipes.emplace_back().attacks.emplace_back().file = file;
    }
    organ.console.stops = {{"", 0, {{0, 1, 1, 0}}, false}, {"", 0, {{0, 1, 0, 0}}, true}};
    RecordingHost host;
    Import import(host, options);
    MemoryGuard memory([free] { return free * 8 / 7 + 8; });
    import.memory = &memory;
    Outcome outcome;
    try {
        outcome.plan = planRanks(organ, import);
    } catch (const TooLarge& shortage) {
        outcome.said = shortage.what();
        outcome.fitting = shortage.fitting();
    } catch (const MemoryShortage& shortage) {
        outcome.said = shortage.what();
    }
    return outcome;
}

} // namespace

TEST(MemoryNeeds, AreSaidBeforeAnOrganIsLoadedWithWhatWouldFit)
{
    const OrganFolder folder;
    // 24 bits take 32 in memory: twice 1.8 MB and once 0.9 MB.
    for (const std::string name : {"a.wav", "b.wav"})
        writeSound(folder.path() / name, SF_FORMAT_WAV | SF_FORMAT_PCM_24, 2);
    writeSound(folder.path() / "c.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 1);
    const std::uint64_t all = 4 * (2 * 240'000 + 240'000);
    const auto with = [&](std::uint64_t bytes, ImportOptions options = {}) {
        return planned(folder, bytes, options).said;
    };
    EXPECT_EQ(with(64 * kMega), "fits");
    EXPECT_EQ(with(all), "fits");
    EXPECT_EQ(with(all - 9), "needs about 3 MB of memory, but only 3 MB are free; load it with 16 "
                             "bits, which takes 2 MB");
    EXPECT_THAT(with(all / 4 * 2 - 9), testing::EndsWith("load it with 16 bits and in mono, which "
                                                         "takes 1 MB"));
    EXPECT_THAT(with(all / 4 * 2 - 9, {.to16Bit = true}),
                testing::EndsWith("load it in mono, which takes 1 MB"));
    EXPECT_THAT(with(all / 8), testing::EndsWith("close other programs"));

    const std::uint64_t drawn = all / 3 * 2; // the stereo files
    EXPECT_THAT(planned(folder, drawn).fitting,
                ElementsAre(ImportOptions{.to16Bit = true},
                            ImportOptions{.stops = StopsToLoad::Drawn},
                            ImportOptions{.stops = StopsToLoad::Fitting}));
    EXPECT_THAT(planned(folder, drawn - 9, {.to16Bit = true, .toMono = true}).said, "fits");
    constexpr LoadState kLoading = LoadState::Loading;
    EXPECT_THAT(planned(folder, drawn, {.stops = StopsToLoad::Drawn}).plan,
                ElementsAre(Pair(0, kLoading), Pair(1, LoadState::Unwanted)));
    EXPECT_THAT(planned(folder, drawn, {.stops = StopsToLoad::Fitting}).plan,
                ElementsAre(Pair(0, kLoading), Pair(1, LoadState::TooLarge)));
    EXPECT_THAT(planned(folder, all, {.stops = StopsToLoad::Fitting}).plan,
                ElementsAre(Pair(0, kLoading), Pair(1, kLoading)));
    EXPECT_THAT(with(drawn - 9, {.stops = StopsToLoad::Drawn}), testing::HasSubstr("only 2 MB"));
}

} // namespace velmora
