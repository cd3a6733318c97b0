#include "tuning/spelling.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace velmora {

TEST(Spelling, NamesTheNotesOfTheChainOfFifths)
{
    const std::vector<std::pair<int, const char*>> rows = {
        {0, "C"},  {1, "G"},   {-1, "F"},  {5, "B"},     {6, "F#"},    {-2, "Bb"},
        {9, "D#"}, {12, "B#"}, {-7, "Cb"}, {-12, "Dbb"}, {-15, "Fbb"}, {14, "C##"}};
    for (const auto& [place, name] : rows)
        EXPECT_EQ(placeName(place), name) << place;
}

} // namespace velmora
