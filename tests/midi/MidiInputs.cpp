#include "midi/MidiInputs.h"

#include "base/Clock.h"
#include "platform/JackClient.h"
#include "support/ChildProgram.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <gmock/gmock.h>

#include <cmath>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace velmora {

using testing::ElementsAre;
using namespace std::chrono_literals;

namespace {

using Message = std::vector<std::uint8_t>;

/// Collects what the receive threads report.
class Inbox : public MidiReceiver {
public:
    void arrived(const MidiDevice& device) override { note(events, "+" + device.name); }
    void departed(const MidiDevice& device) override { note(events, "-" + device.name); }
    void received(std::size_t device, MidiPacket message, double time) override
    {
        const std::lock_guard lock(mutex_);
        times.push_back(time);
        EXPECT_NEAR(time, getTime(), 10.0) << "seconds of that clock";
        devices.push_back(device);
        messages.emplace_back(message.begin(), message.end());
        changed_.notify_all();
    }

    void receivedExclusive(std::size_t /*device*/, MidiPacket message) override
    {
        const std::lock_guard lock(mutex_);
        exclusives.emplace_back(message.begin(), message.end());
        changed_.notify_all();
    }

    template <class List> List wait(List Inbox::*list, std::size_t count)
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, 10s, [&] { return (this->*list).size() >= count; });
        return this->*list;
    }

    std::vector<std::string> events;
    std::vector<Message> messages, exclusives;
    std::vector<std::size_t> devices; ///< The device of each message.
    std::vector<double> times;        ///< The time of each message.

private:
    void note(std::vector<std::string>& list, const std::string& text)
    {
        const std::lock_guard lock(mutex_);
        list.push_back(text);
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
};

} // namespace

TEST(MidiInputs, ReceiveEveryMessageOfEverySourceInOrder)
{
    std::optional<JackServer> server(std::in_place);
    MidiSource source("organ", {"great", "swell"});
    Inbox inbox;
    const MidiInputs inputs(inbox);
    if (inputs.services() != "JACK")
        GTEST_SKIP() << "this machine has an ALSA sequencer with devices of its own";
    EXPECT_THAT(inputs.names(), ElementsAre("organ:great", "organ:swell"));
    std::this_thread::sleep_for(100ms); // the connections take effect with a delay
    for (const Message& message :
         {Message{0xF8}, {0xFE}, {0xF0, 0x7D, 1}, {2, 0xF7}, {0xF0, 0x7D, 1, 0xF7}, {0xD0, 5}})
        source.send(0, message);
    EXPECT_THAT(inbox.wait(&Inbox::messages, 1), ElementsAre(Message{0xD0, 5}))
        << "timing messages are ignored";
    EXPECT_THAT(inbox.wait(&Inbox::exclusives, 2),
                ElementsAre(Message{0xF0, 0x7D, 1, 2, 0xF7}, Message{0xF0, 0x7D, 1, 0xF7}))
        << "whole, even if they arrive in parts";
    source.send(1, {0xB0, 7, 127});
    EXPECT_EQ(inbox.wait(&Inbox::messages, 2).back(), (Message{0xB0, 7, 127}));
    EXPECT_THAT(inbox.wait(&Inbox::devices, 2), ElementsAre(0, 1));
    for (int i = 0; i < 1000; ++i)
        source.send(0, {0x90, static_cast<std::uint8_t>(i % 128), 1});
    const auto all = inbox.wait(&Inbox::messages, 1002);
    ASSERT_EQ(all.size(), 1002);
    for (std::size_t i = 0; i < 1000; ++i)
        ASSERT_EQ(all[2 + i][1], i % 128);
    for (const jack_nframes_t frame : {0, 96})
        source.send(0, {0x90, 60, 1}, frame);
    const auto times = inbox.wait(&Inbox::times, 1004);
    ASSERT_EQ(times.size(), 1004);
    constexpr double kPeriod = 128.0 / 48000.0;
    EXPECT_NEAR(std::fmod(times[1003] - times[1002], kPeriod), 0.002, 0.0005) << "96 frames";
    for (int i = 0; i < 10; ++i) {
        source.send(0, {0x90, 60, 1});
        Inbox another;
        const MidiInputs others(another); // destroyed while messages arrive
    }
    server.reset(); // before the inputs are destroyed
}

/// Each device is another process, and so it can be killed.
TEST(MidiInputs, FollowDevicesAndServersThatComeAndGo)
{
    JackServer server(JackServer::Mode::Asynchronous);
    Inbox inbox;
    const MidiInputs inputs(inbox);
    std::optional<ChildProgram> keys, pads;
    const auto start = [](const char* name) {
        // Strikes key 60 ten times a second.
        return std::vector<std::string>{"jack_midiseq", name, "4800", "0", "60", "2400"};
    };
    std::size_t events = 0;
    for (int i = 0; i <= 10; ++i) {
        SCOPED_TRACE(i);
        keys.emplace(start("keys"));
        ASSERT_EQ(inbox.wait(&Inbox::events, ++events).back(), "+keys:out");
        keys.reset();
        ASSERT_EQ(inbox.wait(&Inbox::events, ++events).back(), "-keys:out");
        pads.emplace(start("pads"));
        ASSERT_EQ(inbox.wait(&Inbox::events, ++events).back(), "+pads:out");
        const std::size_t heard = inbox.wait(&Inbox::messages, 0).size();
        ASSERT_GE(inbox.wait(&Inbox::messages, heard + 4).size(), heard + 4);
        if (i == 10)
            break;
        server.crash();
        ASSERT_EQ(inbox.wait(&Inbox::events, ++events).back(), "-pads:out");
        EXPECT_THAT(inputs.names(), ElementsAre());
        server.restart();
        while (!JackClient::open("velmora-test")) // until the server answers
            std::this_thread::sleep_for(10ms);
    }
}

TEST(JackClient, DoesNotWaitForAServerThatHangs)
{
    const JackServer server(JackServer::Mode::Asynchronous);
    auto client = JackClient::open("velmora-test");
    ASSERT_TRUE(client);
    bool isActive = false;
    EXPECT_TRUE(client->call([&](jack_client_t* jack) { isActive = jack_activate(jack) == 0; }));
    EXPECT_TRUE(isActive);
    server.pause();
    EXPECT_FALSE(client->call([](jack_client_t* jack) {
        jack_port_register(jack, "in", JACK_DEFAULT_AUDIO_TYPE, JackPortIsInput, 0);
    }));
    EXPECT_TRUE(client->isLost());
    client.reset();
    EXPECT_FALSE(JackClient::open("velmora-test"));
    server.resume();
    while (!JackClient::open("velmora-test")) // until the server answers
        std::this_thread::sleep_for(10ms);
}

} // namespace velmora
