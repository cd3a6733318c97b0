#pragma once

#include "support/RecordingInstrument.h"
#include "tuning/Temperament.h"

/// Writes down what it is called with, beside the calls of an instrument.
class RecordingTemperament : public Temperament {
public:
    explicit RecordingTemperament(Calls& calls) : calls_(calls) {}

    void setup(Instrument& /*instrument*/, unsigned char key, float velocity) override
    {
        calls_.push_back(fmt::format("setup {} {:.2f}", key, velocity));
    }
    void fade(double factor) override { calls_.push_back(fmt::format("temperament {}", factor)); }

private:
    Calls& calls_;
};
