#include "midi/midiRead.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Records its calls.
struct RecordingInput : public LiveInput {
    void keyOn(int key, float value) override
    {
        calls += fmt::format("on {} {:.3f}, ", key, value);
    }
    void keyOff(int key) override { calls += fmt::format("off {}, ", key); }
    void setVolume(float volume, std::size_t slider) override
    {
        calls += fmt::format("volume {} {:.3f}, ", slider, volume);
    }
    void midiInput() override { calls += "told"; }

    std::string calls;
};

/// Returns the calls that reading `packets` makes. Each packet has its own buffer, so that
/// sanitizers detect reads past its end.
std::string read(const std::vector<Bytes>& packets)
{
    RecordingInput input;
    midiRead(std::vector<MidiPacket>(packets.begin(), packets.end()), input);
    return input.calls;
}

} // namespace

TEST(MidiRead, CallsTheInputForEachMessage)
{
    for (const auto& [name, packets, calls] :
         std::vector<std::tuple<const char*, std::vector<Bytes>, const char*>>{
             {"note on", {{0x90, 60, 0x40}}, "on 60 0.504, told"},
             {"channel 16", {{0x9F, 127, 1}}, "on 127 0.008, told"},
             {"velocity 0", {{0x90, 60, 0}}, "off 60, told"},
             {"note off", {{0x8A, 60, 0x7F}}, "off 60, told"},
             {"chord",
              {{0x90, 0, 1, 0x91, 4, 127}, {}, {0x90, 7, 127}},
              "on 0 0.008, on 4 1.000, on 7 1.000, told"},
             {"volumes", {{0xB0, 7, 127, 0xB5, 11, 0}}, "volume 0 1.000, volume 1 0.000, "},
             {"volumes of other stops",
              {{0xB0, 76, 64, 0xB0, 78, 1}},
              "volume 2 0.504, volume 4 0.008, "},
             {"other controllers", {{0xB0, 64, 127, 0xB0, 75, 1, 0xB0, 79, 1}}, ""},
             {"bend is read as a controller", {{0xE0, 7, 0}}, "volume 0 0.000, "},
             {"pressure has two bytes", {{0xD0, 80, 0x90, 60, 127}}, "on 60 1.000, told"},
             {"program change takes three bytes", {{0xC0, 5, 0x90, 60, 64}}, "off 60, "},
             {"data bytes are read as a controller", {{60, 7, 127}}, "volume 0 1.000, off 60, "},
             {"data bytes take four bytes",
              {{60, 64, 1, 1, 0x90, 62, 127}},
              "off 60, on 62 1.000, told"},
             {"data after a note", {{0x90, 60, 127, 64, 127}}, "on 60 1.000, off 64, told"}})
        EXPECT_EQ(read(packets), calls) << name;
    for (const Bytes& cut : {Bytes{0x90}, {0x90, 60}, {0x80, 60}, {0xB0, 7}, {0xD0}, {0xF8}})
        EXPECT_EQ(read({cut, {0xB0, 7, 0}}), "volume 0 0.000, ") << "truncated: " << int{cut[0]};
}

} // namespace velmora
