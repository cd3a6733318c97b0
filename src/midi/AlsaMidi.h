#pragma once

#include "midi/MidiService.h"

#include <array>

using snd_seq_t = struct _snd_seq; // NOLINT(bugprone-reserved-identifier): ALSA's name

namespace velmora {

/// The ALSA sequencer. Each of its clients is a device, of which the first port is used.
/// See docs/decisions.md, 50.
class AlsaMidi : public MidiService {
public:
    AlsaMidi();
    ~AlsaMidi() override;

    const char* name() const override { return "ALSA"; }
    std::vector<MidiPort> ports() override;
    int descriptor() const override { return descriptor_; }
    std::unique_ptr<MidiConnection> connect(const MidiPort& port, MidiReceiver& receiver,
                                            std::size_t device) override;

private:
    bool open();
    void readAnnouncements();

    std::unique_ptr<snd_seq_t, int (*)(snd_seq_t*)> sequencer_; ///< Null while there is none.
    int descriptor_ = -1;
    std::array<unsigned, 256> exits_{}; ///< How often each client number has become free.
};

} // namespace velmora
