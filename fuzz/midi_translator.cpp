// Reads the input as messages of one device. A first byte below 128 is the length of a message;
// another one transposes or lets the next control learn an action.

#include "midi/MidiTranslator.h"
#include "require.h"

#include <algorithm>
#include <set>
#include <vector>

namespace velmora {

namespace {

class CheckingDevice : public MusicalInput {
public:
    void keyOn(int key, float velocity, int channel) override
    {
        require(key >= 0 && key < 128 && channel >= 0 && channel < midi::kChannels);
        require(velocity > 0 && velocity <= 1);
        held.insert({channel, key});
    }
    void keyOff(int key, int channel) override { require(held.erase({channel, key}) == 1); }
    void setSustain(bool isDown, int channel) override
    {
        require(isDown ? sustained.insert(channel).second : sustained.erase(channel) == 1);
    }
    void setSostenuto(bool /*isDown*/, int /*channel*/) override {}
    void setSoft(bool /*isDown*/) override {}
    void bend(double cents) override { require(cents >= -200 && cents < 200); }
    void silence() override {}
    void setProgram(std::uint8_t program) override { require(program < 128); }
    void setVolume(float volume, std::size_t slider) override
    {
        require(volume >= 0 && volume <= 1 && slider < 6);
    }
    bool moveConsole(std::uint8_t controller, float value, int channel) override
    {
        require(controller < 128 && value >= 0 && value <= 1 && channel < midi::kChannels);
        return false;
    }
    void toggleVolume(std::size_t slider) override { require(slider == 5); }
    void setMasterVolume(float volume) override { require(volume >= 0 && volume <= 1); }
    void toggleMasterVolume() override {}
    void perform(LearnedAction::Kind /*action*/) override { require(false); }
    void learned(MidiControl control) override
    {
        require(control.number < 128 && control.channel < midi::kChannels);
    }
    void midiInput() override {}

    std::set<std::pair<int, int>> held; ///< Channels and keys.
    std::set<int> sustained;            ///< Channels.
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    PlayingSettings settings;
    LearnedControls learned;
    CheckingDevice device;
    MidiTranslator translator(settings, learned, device);
    for (std::size_t at = 0; at < size;) {
        const std::uint8_t first = data[at++];
        if (first >= 0xC0) {
            learned.listen(first % 2 == 0 ? LearnedAction{LearnedAction::Kind::Volume, 5}
                                          : LearnedAction{LearnedAction::Kind::MasterVolume, 0});
        } else if (first >= 0x80) {
            settings.transposition = first % 49 - kMaxTransposition;
        } else {
            const std::size_t length = std::min<std::size_t>(first, size - at);
            // Each message has its own buffer, so that sanitizers detect reads past its end.
            const std::vector<std::uint8_t> message(data + at, data + at + length);
            translator.read(message);
            at += length;
        }
    }
    for (std::uint8_t channel = 0; channel < midi::kChannels; ++channel) {
        const std::uint8_t message[] = {static_cast<std::uint8_t>(midi::kControlChange | channel),
                                        midi::kAllNotesOff, 0};
        translator.read(message);
    }
    require(device.held.empty());
    return 0;
}

} // namespace velmora
