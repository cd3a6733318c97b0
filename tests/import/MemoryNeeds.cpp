#include "import/MemoryNeeds.h"

#include "import/FolderTree.h"
#include "import/Import.h"
#include "support/OrganFolder.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>
#include <sndfile.h>

namespace velmora {

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

/// Returns what is said about an organ of two ranks that share a file, with so much memory.
std::string said(const OrganFolder& folder, std::uint64_t free, ImportOptions options = {})
{
    PipeOrgan organ;
    organ.tree = openFolder(folder.path());
    organ.files = {"a.wav", "b.wav", "c.flac"};
    for (const std::vector<std::size_t>& files : {std::vector<std::size_t>{0, 1}, {1, 2}}) {
        PipeOrgan::Rank& rank = organ.ranks.emplace_back();
        for (const std::size_t file : files)
            rank.pipes.emplace_back().attacks.emplace_back().file = file;
    }
    RecordingHost host;
    Import import(host, options);
    MemoryGuard memory([free] { return free * 8 / 7 + 8; });
    import.memory = &memory;
    try {
        requireMemory(organ, import);
        return "fits";
    } catch (const MemoryShortage& shortage) {
        return shortage.what();
    }
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
        return said(folder, bytes, options);
    };
    EXPECT_EQ(with(64 * kMega), "fits");
    EXPECT_EQ(with(all), "fits");
    EXPECT_EQ(with(all - 9), "needs about 3 MB of memory, but only 3 MB are free; load it with 16 "
                             "bits, which takes 2 MB");
    EXPECT_THAT(with(all / 4 * 2 - 9), testing::EndsWith("load it with 16 bits and in mono, which "
                                                         "takes 1 MB"));
    EXPECT_THAT(with(all / 4 * 2 - 9, {.to16Bit = true}),
                testing::EndsWith("load it in mono, which takes 1 MB"));
    EXPECT_THAT(with(all / 4), testing::EndsWith("close other programs"));
}

} // namespace velmora
