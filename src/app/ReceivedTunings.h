#pragma once

#include "base/LockFreeQueue.h"
#include "midi/tuningMessages.h"

#include <QTimer>

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace velmora {

class Tunings;

/// Plays the tunings that MIDI devices send. What a device has sent last is the current tuning,
/// under the name of its dump or of the device.
class ReceivedTunings {
public:
    /// `wake` is called on a receive thread to have `take` called on the main thread. `nameOf`
    /// returns the name of a device by its number.
    ReceivedTunings(Tunings& tunings, std::function<void()> wake,
                    std::function<std::string(std::size_t)> nameOf);

    /// Takes a system exclusive message; those that do not tune are ignored. May be called on any
    /// thread; neither waits nor allocates. Messages are dropped while too many wait.
    void receive(std::size_t device, MidiPacket message);

    /// Reads the messages that have been received. The tuning changes at once, or in a moment if it
    /// has just changed. Main thread only.
    void take();

private:
    struct Message {
        std::size_t device;
        std::size_t size;
        std::array<std::uint8_t, kLongestTuningMessage> bytes;
    };

    void read(const Message& message);
    void play();
    std::string titleOf(std::size_t device) const;

    Tunings& tunings_;
    std::function<void()> wake_;
    std::function<std::string(std::size_t)> nameOf_;
    LockFreeQueue<Message> messages_{256};

    std::map<std::size_t, ReceivedTuning> received_; ///< By the number of the device.
    std::map<std::string, std::size_t> titles_;      ///< The device of each tuning that was played.
    std::optional<std::size_t> changed_;             ///< The device whose tuning is to be played.
    QTimer pause_;                                   ///< Runs after each change of the tuning.
};

} // namespace velmora
