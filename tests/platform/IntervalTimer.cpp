#include "platform/IntervalTimer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include <thread>

using namespace std::chrono_literals;

TEST(IntervalTimer, TicksStandOnMultiplesOfTheInterval)
{
    int argc = 0;
    QCoreApplication application(argc, nullptr);
    int late = 0;
    const IntervalTimer missed(20ms, [&] { ++late; });
    std::this_thread::sleep_for(200ms);
    QCoreApplication::processEvents();
    EXPECT_EQ(late, 1) << "ticks that were missed become one";
    int ticks = 0;
    // Each tick takes a part of its interval, which adds up where the timer drifts.
    const IntervalTimer timer(10ms, [&] {
        ++ticks;
        std::this_thread::sleep_for(5ms);
    });
    QTimer::singleShot(600ms, &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    EXPECT_GE(ticks, 45) << "of 60; of a timer that drifts, 40";
    EXPECT_LE(ticks, 75);
}
