#include "midi/MidiInputs.h"

#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace velmora {

using testing::ElementsAre;
using namespace std::chrono_literals;

namespace {

using Message = std::vector<std::uint8_t>;

/// Collects the messages from the receive threads.
struct Inbox {
    void operator()(std::span<const std::uint8_t> bytes)
    {
        const std::lock_guard lock(mutex);
        messages.emplace_back(bytes.begin(), bytes.end());
        arrived.notify_all();
    }

    /// Waits until `count` messages have arrived and returns all messages.
    std::vector<Message> wait(std::size_t count)
    {
        std::unique_lock lock(mutex);
        arrived.wait_for(lock, 10s, [&] { return messages.size() >= count; });
        return messages;
    }

    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<Message> messages;
};

} // namespace

TEST(MidiInputs, ReceiveEveryMessageOfEverySourceInOrder)
{
    std::optional<JackServer> server(std::in_place);
    MidiSource source("organ", {"great", "swell"});
    Inbox inbox;
    const MidiInputs inputs(std::ref(inbox));
    if (inputs.api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer, which is preferred to JACK";
    EXPECT_THAT(inputs.names(), ElementsAre("organ:great", "organ:swell"));
    std::this_thread::sleep_for(100ms); // the connections take effect with a delay
    for (const Message& message : {Message{0xF8}, {0xF0, 0x7D, 1, 0xF7}, {0xD0, 5}})
        source.send(0, message);
    EXPECT_THAT(inbox.wait(1), ElementsAre(Message{0xD0, 5}))
        << "timing and exclusive messages are ignored";
    source.send(1, {0xB0, 7, 127});
    EXPECT_EQ(inbox.wait(2).back(), (Message{0xB0, 7, 127}));
    for (int i = 0; i < 1000; ++i)
        source.send(0, {0x90, static_cast<std::uint8_t>(i % 128), 1});
    const auto all = inbox.wait(1002);
    ASSERT_EQ(all.size(), 1002);
    for (std::size_t i = 0; i < 1000; ++i)
        ASSERT_EQ(all[2 + i][1], i % 128);
    for (int i = 0; i < 10; ++i) {
        source.send(0, {0x90, 60, 1});
        const MidiInputs others(std::ref(inbox)); // destroyed while messages arrive
    }
    server.reset(); // before the inputs are destroyed
}

} // namespace velmora
