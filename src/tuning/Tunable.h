#pragma once

namespace velmora {

class Temperament;

/// The part of an instrument that a temperament uses.
class Tunable {
public:
    virtual ~Tunable() = default;

    /// Plays a key, 0…127, at a velocity from 0 to 1.
    virtual void play(int key, float velocity) = 0;

    /// Retunes the keys from `lo` to `hi` inclusive, including sounding ones.
    virtual void tune(const Temperament& temperament, int lo, int hi) = 0;
};

} // namespace velmora
