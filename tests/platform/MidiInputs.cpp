#include "platform/MidiInputs.h"

#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Message = std::vector<std::uint8_t>;

/// A connection takes effect in one of the server's next periods.
constexpr std::chrono::milliseconds kSettling(100);

/// Gathers what the receive threads bring.
class Inbox {
public:
    MidiReceiver receiver()
    {
        return [this](std::span<const std::uint8_t> bytes) {
            const std::lock_guard lock(mutex_);
            messages_.emplace_back(bytes.begin(), bytes.end());
            arrived_.notify_all();
        };
    }

    /// All that has arrived once there are `count`, or once ten seconds have gone by.
    std::vector<Message> wait(std::size_t count)
    {
        std::unique_lock lock(mutex_);
        arrived_.wait_for(lock, std::chrono::seconds(10),
                          [&] { return messages_.size() >= count; });
        return messages_;
    }

private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::vector<Message> messages_;
};

} // namespace

TEST(MidiInputs, EveryMessageOfEverySourceArrivesInOrder)
{
    const JackServer server;
    MidiSource source("organ", {"great", "swell"});
    Inbox inbox;
    const MidiInputs inputs(inbox.receiver());
    if (inputs.api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer, which goes before JACK";
    EXPECT_EQ(inputs.api(), "JACK");
    EXPECT_THAT(inputs.names(), ElementsAre("organ:great", "organ:swell"));
    std::this_thread::sleep_for(kSettling);

    source.send(0, {0x90, 60, 64});
    source.send(0, {0xD0, 5});
    source.send(0, {0xF8});
    source.send(0, {0xF0, 0x7D, 1, 0xF7});
    source.send(0, {0x80, 60, 0});
    EXPECT_THAT(inbox.wait(3),
                ElementsAre(Message{0x90, 60, 64}, Message{0xD0, 5}, Message{0x80, 60, 0}))
        << "but for timing and system exclusive";
    source.send(1, {0xB0, 7, 127});
    EXPECT_EQ(inbox.wait(4).back(), (Message{0xB0, 7, 127}));

    for (int i = 0; i < 1000; ++i)
        source.send(0, {0x90, static_cast<std::uint8_t>(i % 128), 1});
    const auto all = inbox.wait(1004);
    ASSERT_EQ(all.size(), 1004U);
    for (std::size_t i = 0; i < 1000; ++i)
        ASSERT_EQ(all[4 + i][1], i % 128);
}

TEST(MidiInputs, GoesAwayWhileMessagesComeAndAfterTheServerHasGone)
{
    std::optional<JackServer> server(std::in_place);
    MidiSource source("organ", {"great"});
    Inbox inbox;
    for (int i = 0; i < 10; ++i) {
        const MidiInputs inputs(inbox.receiver());
        for (int note = 0; note < 50; ++note)
            source.send(0, {0x90, 60, 1});
    }
    const MidiInputs inputs(inbox.receiver());
    server.reset();
}

TEST(MidiInputs, NothingThereIsOneLineOfTheLog)
{
    setenv("JACK_DEFAULT_SERVER", "velmora-test-none", 1);
    testing::internal::CaptureStderr();
    const MidiInputs inputs([](std::span<const std::uint8_t>) {});
    const std::string log = testing::internal::GetCapturedStderr();
    unsetenv("JACK_DEFAULT_SERVER");
    if (inputs.api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer";
    EXPECT_THAT(inputs.names(), IsEmpty());
    EXPECT_EQ(inputs.api(), "");
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1) << log;
}
