#include "platform/runInChild.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>

namespace velmora {

TEST(RunInChild, ReturnsCompleteResultsOnly)
{
    constexpr std::chrono::seconds kLong{60};
    const std::string text(200'000, 'x'); // more than a pipe holds
    EXPECT_EQ(runInChild([&] { return text; }, kLong), text);
    EXPECT_EQ(runInChild([]() -> std::string { _exit(3); }, kLong), std::nullopt);
    EXPECT_EQ(runInChild([]() -> std::string { throw std::runtime_error("no"); }, kLong),
              std::nullopt);
    EXPECT_EQ(runInChild(
                  []() -> std::string {
                      for (;;)
                          pause();
                  },
                  std::chrono::milliseconds(50)),
              std::nullopt);
}

} // namespace velmora
