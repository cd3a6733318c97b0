#pragma once

namespace velmora {

class Temperament;

/// What a temperament asks of the instrument that it tunes.
class Tunable {
public:
    virtual ~Tunable() = default;

    /// Starts a key, 0…127, with a velocity from 0 to 1.
    virtual void play(int key, float velocity) = 0;

    /// Retunes the keys `lo` to `hi` inclusive, including those that sound.
    virtual void tune(const Temperament& temperament, int lo, int hi) = 0;
};

} // namespace velmora
