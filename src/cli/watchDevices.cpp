#include "cli/commands.h"

#include "app/Meters.h"
#include "platform/SignalNotifier.h"
#include "platform/terminationSignals.h"

#include <QCoreApplication>
#include <QTimer>
#include <nlohmann/json.hpp>
#include <spdlog/fmt/chrono.h>
#include <spdlog/fmt/fmt.h>

#include <cstdio>

namespace velmora {

namespace {

constexpr int kSecond = 1000; ///< In milliseconds.

nlohmann::ordered_json toJson(const MeterReading& reading)
{
    nlohmann::ordered_json devices = nlohmann::ordered_json::object();
    for (const auto& [name, rate] : reading.devices)
        devices[name] = rate;
    nlohmann::ordered_json lastLoss; // null if no period was lost
    if (reading.lastLoss)
        lastLoss = fmt::format(
            "{:%FT%TZ}", fmt::gmtime(std::chrono::system_clock::to_time_t(*reading.lastLoss)));
    return {{"output", reading.output},
            {"rate", reading.rate},
            {"periodFrames", reading.period},
            {"inputSeconds", reading.latency.input},
            {"engineSeconds", reading.latency.engine},
            {"serverSeconds", reading.latency.server},
            {"voices", reading.voices},
            {"savesWork", reading.savesWork},
            {"meanLoad", reading.load.mean},
            {"worstLoad", reading.load.worst},
            {"lostPeriods", reading.lostPeriods},
            {"lastLoss", lastLoss},
            {"memoryBytes", reading.memory},
            {"messagesPerSecond", devices}};
}

void print(const MeterReading& reading, bool json)
{
    if (json) {
        fmt::print("{}\n",
                   toJson(reading).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
    } else {
        for (const auto& [title, text] : describe(reading))
            fmt::print("{}: {}\n", title, text);
        fmt::print("\n");
    }
    std::fflush(stdout);
}

} // namespace

void watchDevices(bool json, const OutputSettings& output)
{
    SignalNotifier quitOnSignal(terminationSignals());
    quitOnSignal.watch([] { QCoreApplication::quit(); });
    AppDelegate application;
    application.start(output);
    Meters meters(application);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { print(meters.read(), json); });
    timer.start(kSecond);
    QCoreApplication::exec();
}

} // namespace velmora
