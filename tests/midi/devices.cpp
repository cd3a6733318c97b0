#include "midi/DeviceFilter.h"
#include "midi/MidiInputs.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;

namespace {

using Kind = MidiPort::Kind;
using Message = std::vector<std::uint8_t>;

std::vector<std::string> wanted(const std::vector<std::pair<const char*, Kind>>& ports)
{
    std::vector<MidiPort> all;
    for (const auto& [name, kind] : ports)
        all.push_back({.service = nullptr, .name = name, .address = name, .kind = kind});
    std::vector<std::string> names;
    for (const MidiPort& port : wantedPorts(all))
        names.push_back(port.name);
    return names;
}

} // namespace

TEST(MidiDevices, AreConnectedOnceEach)
{
    EXPECT_THAT(wanted({{"Midi Through", Kind::Original},
                        {"Piano", Kind::Original},
                        {"a2j:Piano", Kind::Mirror},
                        {"sequencer:out", Kind::Other}}),
                ElementsAre("Piano", "sequencer:out"));
    EXPECT_THAT(wanted({{"Midi Through", Kind::Original}, {"a2j:Midi Through", Kind::Mirror}}),
                ElementsAre("Midi Through"));
    EXPECT_THAT(wanted({{"Midi Through", Kind::Original}, {"system:midi_1", Kind::Mirror}}),
                ElementsAre("system:midi_1"))
        << "a device that ALSA does not have";
}

TEST(MidiDevices, KeepTheirNamesAndNumbers)
{
    DeviceNumbers numbers;
    const MidiDevice keys{0, "Keys"}, second{1, "Keys 2"}, pads{2, "Pads"};
    EXPECT_EQ(numbers.add("Keys", {}), keys);
    EXPECT_EQ(numbers.add("Keys", {keys}), second);
    EXPECT_EQ(numbers.add("Pads", {keys, second}), pads);
    EXPECT_EQ(numbers.add("Keys", {second, pads}), keys) << "returns";
    std::vector<MidiDevice> present{second};
    for (std::size_t i = 1; i < kMidiDevices; ++i)
        present.push_back(numbers.add("Client " + std::to_string(i), present));
    std::vector<bool> isUsed(kMidiDevices);
    for (const MidiDevice& device : present) {
        EXPECT_FALSE(isUsed.at(device.number)) << device.name;
        isUsed[device.number] = true;
    }
}

TEST(DeviceFilter, ReleasesAKeyAsItWasPressed)
{
    DeviceFilter filter;
    const auto read = [&](const Message& message) {
        const MidiPacket packet = filter.read(message);
        return Message(packet.begin(), packet.end());
    };
    filter.setSettings({.keyOffset = 12, .channel = 2, .isOn = true});
    EXPECT_EQ(read({0x90, 60, 1}), Message()) << "another channel";
    EXPECT_EQ(read({0xB1, 7, 1}), (Message{0xB1, 7, 1}));
    EXPECT_EQ(read({0x91, 116, 1}), Message()) << "beyond the last key";
    EXPECT_EQ(read({0x91, 60, 1}), (Message{0x91, 72, 1}));
    filter.setSettings({.keyOffset = -12, .channel = 2, .isOn = true});
    EXPECT_EQ(read({0x91, 62, 1}), (Message{0x91, 50, 1}));
    EXPECT_EQ(read({0x91, 60, 0}), (Message{0x91, 72, 0}));
    EXPECT_EQ(read({0x81, 60, 9}), (Message{0x81, 48, 9})) << "no longer held";
    filter.setSettings({.keyOffset = 0, .channel = 1, .isOn = false});
    EXPECT_EQ(read({0x81, 62, 9}), (Message{0x81, 50, 9}));
    EXPECT_EQ(read({0x80, 62, 9}), Message());
    EXPECT_EQ(read({0xF8}), Message()) << "off";
}

} // namespace velmora
