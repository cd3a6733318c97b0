// Parses the input as MIDI packets, each preceded by its length.

#include "midi/midiRead.h"
#include "require.h"

#include <algorithm>
#include <vector>

namespace velmora {

namespace {

class CheckingInput : public LiveInput {
public:
    void keyOn(int key, float velocity) override
    {
        call();
        require(key >= 0 && key <= 255);
        require(velocity > 0 && velocity <= 255 / 127.0F);
        ++notes;
    }
    void keyOff(int key) override
    {
        call();
        require(key >= 0 && key <= 255);
        ++notes;
    }
    void setVolume(float volume, std::size_t slider) override
    {
        call();
        require(volume >= 0 && volume <= 255 / 127.0F);
        require(slider < 5);
        ++volumes;
    }
    void midiInput() override
    {
        call();
        require(notes > 0);
        done = true;
    }

    std::size_t notes = 0;
    std::size_t volumes = 0;
    bool done = false;

private:
    void call() const { require(!done); }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::vector<std::uint8_t>> packets;
    std::size_t bytes = 0;
    for (std::size_t at = 0; at < size;) {
        const std::size_t length = std::min<std::size_t>(data[at], size - at - 1);
        // Each packet has its own buffer, so that sanitizers detect reads past its end.
        packets.emplace_back(data + at + 1, data + at + 1 + length);
        bytes += length;
        at += 1 + length;
    }
    const std::vector<MidiPacket> list(packets.begin(), packets.end());
    CheckingInput input;
    midiRead(list, input);
    require(input.notes <= bytes && 3 * input.volumes <= bytes);
    return 0;
}

} // namespace velmora
