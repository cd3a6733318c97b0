#pragma once

#include "midi/MidiService.h"

#include <atomic>

namespace velmora {

class JackClient;

/// The MIDI ports of the JACK server. JACK has no devices, so each port counts as one and is named
/// by its full port name.
class JackMidi : public MidiService {
public:
    JackMidi();
    ~JackMidi() override;

    const char* name() const override { return "JACK"; }
    std::vector<MidiPort> ports() override;
    int descriptor() const override { return changes_->descriptor; }
    std::unique_ptr<MidiConnection> connect(const MidiPort& port, MidiReceiver& receiver,
                                            std::size_t device) override;

    /// What libjack says about ports that come and go.
    struct Changes {
        Changes();
        ~Changes();
        Changes(const Changes&) = delete;
        Changes& operator=(const Changes&) = delete;

        int descriptor;                 ///< An eventfd, written after each change.
        std::atomic<unsigned> exits{0}; ///< How many ports have vanished.
    };

private:
    bool open();

    std::shared_ptr<Changes> changes_;
    std::unique_ptr<JackClient> watcher_; ///< Null while there is no server.
};

} // namespace velmora
