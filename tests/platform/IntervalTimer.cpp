#include "platform/IntervalTimer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

/// Runs the event loop for a time, and returns how long that was.
Clock::duration runFor(std::chrono::milliseconds time)
{
    const auto start = Clock::now();
    QEventLoop loop;
    const IntervalTimer end(time, [&] { loop.quit(); });
    loop.exec();
    return Clock::now() - start;
}

} // namespace

class IntervalTimerTest : public testing::Test {
    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
};

TEST_F(IntervalTimerTest, TicksStandOnMultiplesOfTheInterval)
{
    int ticks = 0;
    Clock::duration passed{};
    {
        // Each tick takes a part of its interval, which adds up where the timer drifts.
        const IntervalTimer timer(10ms, [&] {
            ++ticks;
            std::this_thread::sleep_for(5ms);
        });
        passed = runFor(600ms);
    }
    EXPECT_LE(ticks, passed / 10ms);
    EXPECT_GE(ticks, 45) << "of 60; of a timer that drifts, 40";
}

TEST_F(IntervalTimerTest, TicksMissedBecomeOne)
{
    int ticks = 0;
    const IntervalTimer timer(20ms, [&] { ++ticks; });
    std::this_thread::sleep_for(200ms);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks, 1);
}

TEST_F(IntervalTimerTest, StopsWhenItGoes)
{
    int ticks = 0;
    {
        const IntervalTimer timer(1ms, [&] { ++ticks; });
        runFor(50ms);
        EXPECT_GE(ticks, 2);
        std::this_thread::sleep_for(5ms);
    }
    const int last = ticks;
    runFor(50ms);
    EXPECT_EQ(ticks, last);
}
