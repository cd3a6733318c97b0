#pragma once

#include "midi/LearnedControls.h"
#include "midi/MusicalInput.h"
#include "midi/PlayingSettings.h"
#include "midi/midiRead.h"

#include <array>
#include <bitset>
#include <cstdint>

namespace velmora {

/// The musical reading of one MIDI device. Notes, pedals, the pitch wheel, program changes and the
/// volume controllers mean what a player means by them; pressure and system messages do nothing. A
/// control that has learned an action does that and nothing else. Used on the device's receive
/// thread; neither allocates nor throws.
class MidiTranslator {
public:
    /// The arguments must outlive the translator.
    MidiTranslator(const PlayingSettings& settings, LearnedControls& learned, MusicalInput& input);

    /// Reads one whole message with its status byte. A message that is malformed is ignored.
    void read(MidiPacket message);

    /// Forgets the held keys and pedals, without a call.
    void reset();

private:
    static constexpr std::uint8_t kNoKey = 0xFF;

    struct Channel {
        /// For each key of the device the key that it sounds, which is another one if it is
        /// transposed; `kNoKey` if it is up. Two keys may sound the same one.
        std::array<std::uint8_t, 128> sounding;

        std::bitset<128> down; ///< The pedals that are down, by their controllers.
        std::bitset<128> high; ///< The learned controllers whose last value was 64 or more.
    };

    void readNote(int channel, std::uint8_t key, std::uint8_t velocity);
    void release(int channel, std::uint8_t key);
    void readController(int channel, std::uint8_t number, std::uint8_t value);
    void moveController(int channel, std::uint8_t number, std::uint8_t value);
    void readMode(int channel, std::uint8_t number);
    void releaseAll(int channel);
    void setPedal(int channel, std::uint8_t number, bool isDown);
    void useLearned(LearnedAction action, std::uint8_t value, bool wentHigh);
    void bend(double cents);

    const PlayingSettings& settings_;
    LearnedControls& learned_;
    MusicalInput& input_;
    std::array<Channel, midi::kChannels> channels_{};
    double cents_ = 0.0; ///< The last bend.
};

} // namespace velmora
