#pragma once

#include <cstddef>
#include <memory>

namespace stk {
class FreeVerb;
}

namespace velmora {

/// The reverberation of the General MIDI synthesizer, shared by its lanes. It has no modulation,
/// which would detune the sound by a tenth of a cent.
class Reverb {
public:
    /// `rate` is in hertz.
    explicit Reverb(double rate);
    ~Reverb();

    /// Adds reverberation to `left` and `right`. Takes no time during silence.
    void process(float* left, float* right, std::size_t frames);

    /// Stops the reverberation immediately.
    void silence();

private:
    std::unique_ptr<stk::FreeVerb> freeVerb_;
    std::size_t silentFramesToSleep_;
    std::size_t silentFrames_;
};

} // namespace velmora
