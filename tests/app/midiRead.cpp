#include "app/midiRead.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <bitset>
#include <random>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Writes down what it is called with, and knows which keys are held.
class RecordingInput : public LiveInput {
public:
    void keyOn(int key, float velocity) override
    {
        calls.push_back(fmt::format("on {} {:.3f}", key, velocity));
        hold(key, true);
    }
    void keyOff(int key) override
    {
        calls.push_back(fmt::format("off {}", key));
        hold(key, false);
    }
    void setVolume(float volume, std::size_t slider) override
    {
        calls.push_back(fmt::format("volume {} {:.3f}", slider, volume));
    }
    void midiInput() override { calls.emplace_back("midiInput"); }

    std::vector<std::string> calls;
    std::bitset<128> held;

private:
    void hold(int key, bool down)
    {
        if (key < 128)
            held.set(static_cast<std::size_t>(key), down);
    }
};

std::vector<std::string> read(const std::vector<Bytes>& packets)
{
    RecordingInput input;
    const std::vector<MidiPacket> list(packets.begin(), packets.end());
    midiRead(list, input);
    return input.calls;
}

/// Each packet in a buffer of exactly its size, where AddressSanitizer sees a read beyond it.
void readOne(const Bytes& packet, LiveInput& input)
{
    const Bytes exact(packet.begin(), packet.end());
    const MidiPacket one = exact;
    midiRead({&one, 1}, input);
}

} // namespace

TEST(MidiRead, NotesOfAllChannelsPressAndReleaseKeys)
{
    EXPECT_THAT(read({{0x90, 60, 0x40}}), ElementsAre("on 60 0.504", "midiInput"));
    EXPECT_THAT(read({{0x9F, 60, 0x40}}), ElementsAre("on 60 0.504", "midiInput"));
    EXPECT_THAT(read({{0x90, 0, 1, 0x91, 127, 127}}),
                ElementsAre("on 0 0.008", "on 127 1.000", "midiInput"));
    EXPECT_THAT(read({{0x90, 60, 0}}), ElementsAre("off 60", "midiInput")) << "velocity 0";
    EXPECT_THAT(read({{0x8A, 60, 0x7F}}), ElementsAre("off 60", "midiInput"));
}

TEST(MidiRead, FiveControllersAreTheVolumesOfTheStops)
{
    EXPECT_THAT(read({{0xB0, 7, 127, 0xB5, 11, 0, 0xB0, 76, 64, 0xB0, 77, 1, 0xB0, 78, 127}}),
                ElementsAre("volume 0 1.000", "volume 1 0.000", "volume 2 0.504", "volume 3 0.008",
                            "volume 4 1.000"));
    EXPECT_THAT(read({{0xB0, 64, 127, 0xB0, 75, 1, 0xB0, 79, 1}}), IsEmpty()) << "others";
    EXPECT_THAT(read({{0xE0, 7, 0}, {0xA0, 11, 127}, {0xF0, 76, 127}}),
                ElementsAre("volume 0 0.000", "volume 1 1.000", "volume 2 1.000"))
        << "any other status is taken for a controller";
}

TEST(MidiRead, WhatArrivesTogetherIsToldOnce)
{
    EXPECT_THAT(read({{0x90, 60, 127, 0x90, 64, 127}, {}, {0x90, 67, 127}}),
                ElementsAre("on 60 1.000", "on 64 1.000", "on 67 1.000", "midiInput"));
    EXPECT_THAT(read({{0x80, 60, 0}, {0xB0, 7, 127}}),
                ElementsAre("off 60", "volume 0 1.000", "midiInput"));
    EXPECT_THAT(read({{}}), IsEmpty());
    EXPECT_THAT(read({}), IsEmpty());
}

TEST(MidiRead, MessagesOfTwoBytes)
{
    EXPECT_THAT(read({{0xD0, 0x50, 0x90, 60, 127}}), ElementsAre("on 60 1.000", "midiInput"))
        << "channel pressure has two bytes";
    EXPECT_THAT(read({{0xC0, 5, 0x90, 60, 0x40}}), ElementsAre("off 60"))
        << "program change swallows the next status";
    EXPECT_THAT(read({{0xC0, 5}}), IsEmpty());
}

TEST(MidiRead, MessageThatBeginsWithADataByteReleasesItsKey)
{
    EXPECT_THAT(read({{60}}), ElementsAre("off 60"));
    EXPECT_THAT(read({{60, 64}}), ElementsAre("off 60"));
    EXPECT_THAT(read({{60, 7, 127}}), ElementsAre("volume 0 1.000", "off 60"));
    EXPECT_THAT(read({{60, 64, 1, 1, 0x90, 62, 127}}),
                ElementsAre("off 60", "on 62 1.000", "midiInput"))
        << "four bytes long";
    EXPECT_THAT(read({{0x90, 60, 127, 64, 127}}),
                ElementsAre("on 60 1.000", "off 64", "midiInput"));
}

TEST(MidiRead, MessageCutShortDoesNothing)
{
    for (const Bytes& cut : {Bytes{0x90}, {0x90, 60}, {0x80, 60}, {0xB0, 7}, {0xD0}, {0xF8}})
        EXPECT_THAT(read({cut, {0xB0, 7, 0}}), ElementsAre("volume 0 0.000")) << int{cut[0]};
}

TEST(MidiRead, RandomPacketsLeaveNothingHeldOnceAllKeysAreReleased)
{
    std::mt19937 random(20);
    const auto byte = [&](int lowest, int highest) {
        return static_cast<std::uint8_t>(std::uniform_int_distribution(lowest, highest)(random));
    };
    RecordingInput input;
    std::bitset<128> expected;
    for (int i = 0; i < 10000; ++i) {
        const std::uint8_t key = byte(0, 127);
        const std::uint8_t value = byte(0, 127);
        const std::uint8_t status = byte(0x80, 0xBF);
        readOne({status, key, value}, input);
        if (status < 0xA0)
            expected.set(key, status >= 0x90 && value != 0);
    }
    EXPECT_EQ(input.held, expected);

    for (int i = 0; i < 10000; ++i) {
        Bytes packet(byte(0, 12));
        for (std::uint8_t& each : packet)
            each = byte(0, 255);
        readOne(packet, input);
    }
    for (int key = 0; key < 128; ++key)
        readOne({0x80, static_cast<std::uint8_t>(key), 0}, input);
    EXPECT_TRUE(input.held.none()) << input.held;
}
