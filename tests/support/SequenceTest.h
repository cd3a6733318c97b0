#pragma once

#include "sequencer/SequenceDocument.h"
#include "support/RecordingInstrument.h"
#include "tuning/Temperament.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {

/// A document on a clock that is moved by hand, whose instrument and temperament write down what
/// they are called with. 16 steps of a file are a second, 15 of the document's.
class SequenceTest : public testing::Test, public SequenceHost, public Temperament {
protected:
    SequenceTest()
    {
        for (auto* times : {&notePressTimes, &noteReleaseTimes})
            std::fill(times->begin(), times->end(), 0.0);
    }

    Instrument* getInstrument() override { return &instrument_; }
    Temperament* getTemperament() override { return this; }
    std::mutex& soundLock() override { return lock_; }
    void setup(Tunable& /*instrument*/, unsigned char key, float /*velocity*/) override
    {
        calls_.push_back(fmt::format("setup {}", key));
    }
    void isomorph(Tunable& /*instrument*/, int n) override
    {
        calls_.push_back(fmt::format("isomorph {}", n));
    }

    /// Adds a committed note and measures the extent.
    void add(unsigned key, double start, double length)
    {
        document_.edit()->addNote({.start = start,
                                   .length = length,
                                   .oldLength = length,
                                   .velocity = 1.0F,
                                   .key = key,
                                   .oldStart = start,
                                   .oldKey = key});
        document_.measure();
    }

    /// One tick of the timer after so many steps.
    void tick(double steps)
    {
        now_ += steps / 15.0;
        document_.loop();
    }

    static constexpr auto kStopped = SequenceDocument::Mode::Stopped;

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    std::mutex lock_;
    double now_ = 1000.0;
    SequenceDocument document_{*this, [this] { return now_; }};
};

} // namespace velmora
