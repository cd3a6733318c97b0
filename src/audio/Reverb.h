#pragma once

#include <array>
#include <cstddef>
#include <memory>

namespace stk {
class FreeVerb;
}

namespace velmora {

/// The reverberation of the General MIDI synthesizer, shared by its lanes. It has no modulation,
/// which would detune the sound by a tenth of a cent. At high rates it runs at a whole fraction of
/// the rate, between 44,100 and 88,200 Hz, which keeps the size of the room.
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
    void tick(float& left, float& right);

    std::unique_ptr<stk::FreeVerb> freeVerb_;
    const int framesPerTick_;
    int frame_ = 0;                       ///< The number of frames since the last tick.
    std::array<double, 2> sums_{};        ///< The input since the last tick.
    std::array<double, 2> from_{}, to_{}; ///< The last two outputs.
    std::size_t silentFramesToSleep_;
    std::size_t silentFrames_;
};

} // namespace velmora
