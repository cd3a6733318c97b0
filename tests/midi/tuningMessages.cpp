#include "midi/tuningMessages.h"

#include "midi/ExclusiveBuffer.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The greatest error of a place that is written and read again.
constexpr double kHalfUnit = 0.5 / 16384;

/// Returns a message of the given kind with the parts behind the device.
Bytes message(std::uint8_t realTime, std::uint8_t kind, std::initializer_list<Bytes> parts)
{
    Bytes bytes{0xF0, realTime, 0x10, 0x08, kind};
    for (const Bytes& part : parts)
        bytes.insert(bytes.end(), part.begin(), part.end());
    bytes.push_back(0xF7);
    return bytes;
}

/// Puts the checksum of a dump before its last byte.
Bytes withChecksum(Bytes bytes)
{
    std::uint8_t sum = 0;
    for (std::size_t i = 1; i + 1 < bytes.size(); ++i)
        sum ^= bytes[i];
    bytes.insert(bytes.end() - 1, sum & 0x7F);
    return bytes;
}

Bytes name(std::string text)
{
    text.resize(16, ' ');
    return {text.begin(), text.end()};
}

/// An irregular tuning with keys at both ends.
KeyPlaces someTuning()
{
    KeyPlaces places{};
    for (std::size_t key = 0; key < places.size(); ++key)
        places[key] = static_cast<double>(key) * 0.98 + 0.37 * static_cast<double>(key % 5);
    return places;
}

} // namespace

TEST(TuningMessages, AreReadAsTheyWereWritten)
{
    const KeyPlaces places = someTuning();
    ReceivedTuning tuning;
    ASSERT_TRUE(readTuningMessage(writeBulkDump("Vallotti", places), tuning));
    EXPECT_EQ(tuning.name, "Vallotti");
    for (std::size_t key = 0; key < places.size(); ++key)
        ASSERT_NEAR(tuning.places[key], places[key], kHalfUnit) << key;

    ReceivedTuning changed;
    ASSERT_TRUE(readTuningMessage(writeKeyChanges(Bytes{0, 60, 127}, places), changed));
    for (const std::size_t key : {0UL, 60UL, 127UL})
        EXPECT_NEAR(changed.places[key], places[key], kHalfUnit);
    EXPECT_EQ(changed.places[61], 61.0) << "no other key";

    std::array<double, 12> cents{0, -24, -6.8, 10.3, 99.99, -100, 3, -3.4, 50, -50, 7, 0.01};
    ASSERT_TRUE(readTuningMessage(writeOctaveTuning(cents), tuning));
    EXPECT_EQ(tuning.name, "Vallotti") << "only dumps have names";
    for (std::size_t key = 0; key < places.size(); ++key)
        ASSERT_NEAR(tuning.places[key], static_cast<double>(key) + cents[key % 12] / 100, 1e-4);
    cents.fill(150.0);
    ASSERT_TRUE(readTuningMessage(writeOctaveTuning(cents), tuning));
    EXPECT_NEAR(tuning.places[60], 61.0, 1e-3) << "the farthest that the message can say";
}

TEST(TuningMessages, OfEveryKindAreRead)
{
    const Bytes octave(12, 64 + 10), middle{60, 61, 0x20, 0x00};
    Bytes octaveOfTwo;
    for (int i = 0; i < 12; ++i)
        octaveOfTwo.insert(octaveOfTwo.end(), {0x30, 0x00});
    Bytes keys;
    for (std::uint8_t key = 0; key < 128; ++key)
        keys.insert(keys.end(), {key, 0x40, 0x00});
    const struct {
        const char* what;
        Bytes bytes;
        double middleC;
    } rows[] = {
        {"octave of one byte", message(0x7E, 8, {{3, 127, 127}, octave}), 60.1},
        {"octave of two bytes", message(0x7F, 9, {{3, 127, 127}, octaveOfTwo}), 59.75},
        {"key", message(0x7F, 2, {{5, 1}, middle}), 61.25},
        {"key of a bank", message(0x7E, 7, {{1, 5, 1}, middle}), 61.25},
        {"dump of a bank", withChecksum(message(0x7E, 4, {{1, 5}, name("Own"), keys})), 60.5},
        {"octave dump", withChecksum(message(0x7E, 5, {{1, 5}, name("Own"), octave})), 60.1},
        {"wide octave dump", withChecksum(message(0x7E, 6, {{1, 5}, name("Own"), octaveOfTwo})),
         59.75},
        {"key that stays", message(0x7F, 2, {{5, 1}, {60, 127, 127, 127}}), 60.0},
    };
    for (const auto& row : rows) {
        ReceivedTuning tuning;
        ASSERT_TRUE(readTuningMessage(row.bytes, tuning)) << row.what;
        EXPECT_NEAR(tuning.places[60], row.middleC, 1e-9) << row.what;
        EXPECT_LE(row.bytes.size(), kLongestTuningMessage);

        // Damaged in any way, it changes nothing.
        for (std::size_t length = 0; length < row.bytes.size(); ++length) {
            Bytes shorter(row.bytes.begin(), row.bytes.begin() + static_cast<long>(length));
            shorter.push_back(0xF7);
            ReceivedTuning other;
            EXPECT_EQ(readTuningMessage(shorter, other), length + 1 == row.bytes.size());
            EXPECT_TRUE(length + 1 == row.bytes.size() || other.places == ReceivedTuning().places)
                << row.what << " of " << length;
        }
        Bytes bad = row.bytes;
        bad[bad.size() - 2] |= 0x80;
        EXPECT_FALSE(readTuningMessage(bad, tuning)) << row.what << " with a status byte";
    }
    Bytes dump = writeBulkDump("Name", someTuning());
    dump[100] ^= 1;
    ReceivedTuning tuning;
    EXPECT_FALSE(readTuningMessage(dump, tuning)) << "the checksum";
    EXPECT_TRUE(isTuningMessage(dump));
    EXPECT_FALSE(isTuningMessage(Bytes{0xF0, 0x7E, 0, 8, 0, 0, 0xF7})) << "asks for a dump";
}

TEST(ExclusiveBuffer, JoinsPartsAndDropsWhatIsTooLong)
{
    ExclusiveBuffer buffer;
    const auto take = [&](const Bytes& part) -> std::string {
        if (!buffer.isPart(part))
            return "other";
        const MidiPacket whole = buffer.add(part);
        return {whole.begin(), whole.end()};
    };
    EXPECT_EQ(take({1, 2}), "other");
    EXPECT_EQ(take({0xF0, 1}), "");
    EXPECT_EQ(take({0xF8}), "other") << "the clock may come between";
    EXPECT_EQ(take({2, 3}), "");
    EXPECT_EQ(take({0xF7}), "\xF0\1\2\3\xF7");
    EXPECT_EQ(take({0xF7}), "other");
    EXPECT_EQ(take({0xF0, 1}), "");
    EXPECT_EQ(take({0x90, 60, 1}), "other") << "ends the message";
    EXPECT_EQ(take({2, 0xF7}), "other");
    EXPECT_EQ(take({0xF0, 4, 0xF7}), "\xF0\4\xF7");

    take({0xF0});
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(take(Bytes(7, 5)), "");
    EXPECT_EQ(take({0xF7}), "") << "too long";
    EXPECT_EQ(take({0xF0, 6, 0xF7}), "\xF0\6\xF7");
}

} // namespace velmora
