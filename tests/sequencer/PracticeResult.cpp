#include "sequencer/PracticeHistory.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

namespace velmora {

namespace {

PracticeSummary twoBars()
{
    MusicalTime time;
    time.setTimeSignatures({{0.0, 3, 4}}); // bars of 24 steps
    return summarize({.strokes = {{0.0, 60, -0.06}, {23.9, 62, 0.004}, {24.0, 64, 0.4}},
                      .wrong = {{30.0, 61}, {50.0, 61}},
                      .missed = {{20.0, 60}, {50.0, 60}, {80.0, 60}},
                      .passes = 2,
                      .cleanPasses = 1,
                      .speed = 0.6},
                     time);
}

} // namespace

TEST(PracticeResult, IsSummedUpByBar)
{
    const PracticeSummary summary = twoBars();
    EXPECT_EQ(summary.right, 3);
    EXPECT_EQ(summary.wrong, 2);
    EXPECT_EQ(summary.missed, 3);
    EXPECT_EQ(summary.early, 1);
    EXPECT_EQ(summary.late, 1);
    EXPECT_EQ(summary.medianDelay, 0.004) << "not moved by the latest key";
    ASSERT_EQ(summary.bars.size(), 4U);
    EXPECT_EQ(summary.bars[0], (PracticeBar{1, 2, 0, 1}));
    EXPECT_EQ(summary.bars[1], (PracticeBar{2, 1, 1, 0}));
    EXPECT_EQ(summary.bars[2], (PracticeBar{3, 0, 1, 1})) << "nothing was right";
    EXPECT_EQ(summary.bars[3], (PracticeBar{4, 0, 0, 1})) << "nothing was struck";
    EXPECT_EQ(summary.delays[9], 1) << "60 ms early";
    EXPECT_EQ(summary.delays[12], 1) << "on time";
    EXPECT_EQ(summary.delays[24], 1) << "far too late";
}

TEST(PracticeHistory, KeepsTheLatestSessionsOfAPiece)
{
    std::string name = (std::filesystem::temp_directory_path() / "practice-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    const std::filesystem::path folder = name + "/new";
    const auto at = [](int seconds) { return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC); };
    PracticeHistory history(folder, "a/piece.mid");
    for (int i = 0; i < 52; ++i)
        history.add({at(i), twoBars()});
    const PracticeChoice choice{0b101, 3, 7};
    history.choose(choice);
    EXPECT_EQ(PracticeHistory(folder, "a/piece.mid").choice(), choice);
    history.add({at(52), twoBars()});
    const PracticeHistory again(folder, "a/b/../piece.mid");
    ASSERT_EQ(again.entries().size(), PracticeHistory::kMaxEntries);
    EXPECT_EQ(again.choice(), choice);
    EXPECT_EQ(again.entries().front().time, at(3));
    EXPECT_EQ(again.entries().back().summary, twoBars());
    EXPECT_TRUE(PracticeHistory(folder, "a/other.mid").entries().empty());
    for (const auto& file : std::filesystem::directory_iterator(folder))
        std::ofstream(file.path()) << R"({"sessions": [7, {"time": "2026-01-01T00:00:00Z"}]})";
    EXPECT_EQ(PracticeHistory(folder, "a/piece.mid").entries().size(), 1U) << "what can be read";
    std::filesystem::remove_all(name);
}

} // namespace velmora
