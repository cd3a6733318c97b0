#include "tuning/historicalTemperaments.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace velmora {

namespace {

/// The cents of C♯ to B, as published tables give them.
struct Published {
    const char* name;
    double cents[11];
};

constexpr double kTolerance = 0.01;

// clang-format off
constexpr Published kPublished[] = {
    {"Grammateus", {101.955, 203.910, 305.865, 407.820, 498.045, 600.0, 701.955, 803.910, 905.865, 1007.820, 1109.775}},
    {"Third-Comma Meantone", {63.504, 189.572, 315.641, 379.145, 505.214, 568.717, 694.786, 758.290, 884.359, 1010.427, 1073.931}},
    {"Quarter-Comma Meantone", {76.049, 193.157, 310.265, 386.314, 503.422, 579.471, 696.578, 772.627, 889.735, 1006.843, 1082.892}},
    {"Fifth-Comma Meantone", {83.576, 195.307, 307.039, 390.615, 502.346, 585.922, 697.654, 781.230, 892.961, 1004.693, 1088.269}},
    {"Chaumont", {76.049, 193.157, 290.909, 386.314, 503.422, 579.471, 696.578, 772.627, 889.735, 997.165, 1082.892}},
    {"Rameau", {86.802, 193.157, 297.800, 386.314, 503.422, 584.847, 696.578, 788.757, 889.735, 1006.843, 1082.892}},
    {"Corrette", {72.630, 192.180, 296.090, 384.360, 503.910, 576.540, 696.090, 776.540, 888.270, 1000.0, 1080.450}},
    {"Hawkes", {83.576, 195.307, 295.112, 390.615, 502.346, 585.922, 697.654, 785.531, 892.961, 1004.693, 1088.269}},
    {"Young II", {90.225, 196.090, 294.135, 392.180, 498.045, 588.270, 698.045, 792.180, 894.135, 996.090, 1090.225}},
    {"Werckmeister III", {90.225, 192.180, 294.135, 390.225, 498.045, 588.270, 696.090, 792.180, 888.270, 996.090, 1092.180}},
    {"Werckmeister IV", {82.405, 196.090, 294.135, 392.180, 498.045, 588.270, 694.135, 784.360, 890.225, 1003.910, 1086.315}},
    {"Bendeler I", {90.225, 188.270, 294.135, 392.180, 498.045, 588.270, 694.135, 792.180, 890.225, 996.090, 1094.135}},
    {"Bendeler II", {90.225, 196.090, 294.135, 392.180, 498.045, 596.090, 694.135, 792.180, 890.225, 996.090, 1094.135}},
    {"Bendeler III", {96.090, 192.180, 294.135, 396.090, 498.045, 594.135, 696.090, 798.045, 894.135, 996.090, 1092.180}},
    {"Neidhardt, Village", {94.135, 196.090, 296.090, 392.180, 498.045, 592.180, 698.045, 796.090, 894.135, 996.090, 1092.180}},
    {"Neidhardt, Small City", {96.090, 196.090, 298.045, 394.135, 500.0, 596.090, 698.045, 796.090, 894.135, 1000.0, 1096.090}},
    {"Neidhardt, Large City", {96.090, 196.090, 298.045, 394.135, 498.045, 596.090, 698.045, 796.090, 894.135, 998.045, 1096.090}},
    {"Sorge A", {98.045, 196.090, 301.955, 396.090, 501.955, 598.045, 698.045, 800.0, 896.090, 1001.955, 1098.045}},
    {"Sorge B", {94.135, 196.090, 298.045, 396.090, 498.045, 594.135, 698.045, 796.090, 894.135, 998.045, 1094.135}},
    {"Vallotti", {94.135, 196.090, 298.045, 392.180, 501.955, 592.180, 698.045, 796.090, 894.135, 1000.0, 1090.225}},
    {"Kirnberger II", {90.225, 203.910, 294.135, 386.314, 498.045, 590.224, 701.955, 792.180, 895.112, 996.090, 1088.269}},
    {"Kirnberger III", {90.225, 193.157, 294.135, 386.314, 498.045, 590.224, 696.578, 792.180, 889.735, 996.090, 1088.269}},
    {"Lambert", {93.576, 197.207, 297.486, 394.414, 501.396, 591.621, 698.604, 795.531, 895.811, 999.441, 1093.018}},
    {"Kellner", {90.225, 194.526, 294.135, 389.052, 498.045, 588.270, 697.263, 792.180, 891.789, 996.090, 1091.007}},
    {"Barnes", {94.135, 196.090, 298.045, 392.180, 501.955, 592.180, 698.045, 796.090, 894.135, 1000.0, 1094.135}},
    {"Euler", {70.672, 203.910, 274.582, 386.314, 498.045, 590.224, 701.955, 772.627, 884.359, 976.537, 1088.269}},
    {"31 Equal Steps, Twelve Keys", {77.419, 193.548, 309.677, 387.097, 503.226, 580.645, 696.774, 774.194, 890.323, 1006.452, 1083.871}},
    {"Zhu Zaiyu", {100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 1100}},
};
// clang-format on

} // namespace

TEST(HistoricalTemperaments, AgreeWithPublishedTables)
{
    for (const Published& published : kPublished) {
        const auto* found = findHistoricalTemperament(published.name);
        ASSERT_NE(found, nullptr) << published.name;
        const Temperament temperament = found->make();
        for (unsigned long key = 1; key < 12; ++key)
            EXPECT_NEAR(temperament.getTuning(key).cent(), published.cents[key - 1], kTolerance)
                << published.name << ", key " << key;
    }
}

TEST(HistoricalTemperaments, HaveAscendingPitchesAndNamesOfTheirOwn)
{
    std::set<std::string_view> names;
    for (const HistoricalTemperament& each : historicalTemperaments()) {
        EXPECT_TRUE(names.insert(each.name).second) << each.name;
        EXPECT_FALSE(each.group.empty() || each.source.empty()) << each.name;
        // La Monte Young's fifth key lies below his fourth.
        if (each.name == "La Monte Young")
            continue;
        const Temperament temperament = each.make();
        for (unsigned long key = 1; key < 12; ++key)
            EXPECT_GT(temperament.getPitch(key), temperament.getPitch(key - 1)) << each.name;
        EXPECT_GT(temperament.getPitch(12), temperament.getPitch(11)) << each.name;
    }
    EXPECT_GE(names.size(), 60U);
    EXPECT_EQ(findHistoricalTemperament("Valotti"), nullptr);
}

} // namespace velmora
