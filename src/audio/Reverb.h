#pragma once

#include <cstddef>
#include <memory>

namespace stk {
class FreeVerb;
}

namespace velmora {

/// The room around the General MIDI synthesizer, common to all its lanes. It keeps still: a
/// reverberation whose echoes waver would blur by a tenth of a cent what the temperament tunes.
class Reverb {
public:
    explicit Reverb(double rate);
    ~Reverb();

    /// Adds the room's answer to what stands in `left` and `right`. Costs nothing in a silence.
    void process(float* left, float* right, std::size_t frames);

    /// Ends the echoes at once.
    void silence();

private:
    std::unique_ptr<stk::FreeVerb> freeVerb_;
    std::size_t silentFramesToSleep_;
    std::size_t silentFrames_;
};

} // namespace velmora
