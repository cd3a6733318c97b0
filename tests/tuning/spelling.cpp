#include "tuning/spelling.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace velmora {

TEST(Spelling, NamesThePitchesOfMeantone)
{
    const std::vector<std::pair<double, const char*>> rows = {
        {0.0, "C"},     {1200.0, "C"},  {-41.06, "B#"}, {41.06, "Dbb"}, {76.05, "C#"},
        {117.11, "Db"}, {269.2, "D#"},  {310.3, "Eb"},  {503.4, "F"},   {965.8, "A#"},
        {1006.8, "Bb"}, {351.3, "Fbb"}, {386.3, "E"},   {1124.0, "Cb"}, {152.1, "C##"},
        {698.0, "G"},   {-193.2, "Bb"}, {100.0, ""},    {702.0, ""},    {600.0, ""}};
    for (const auto& [cents, name] : rows)
        EXPECT_EQ(spelling(cents), name) << cents;
}

} // namespace velmora
