#pragma once

#include "sequencer/LiveKeys.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"

#include <random>

namespace velmora {

constexpr unsigned kManyNotes = 100'000;

/// The length of the sequence in steps; ten notes start in each.
constexpr double kManySteps = kManyNotes / 10.0;

/// Adds many notes, on the keys of a piano.
inline void addManyNotes(Sequence& sequence)
{
    std::mt19937 random(1);
    for (unsigned i = 0; i < kManyNotes; ++i)
        sequence.addNote({.start = kManySteps * i / kManyNotes,
                          .length = 1.0 + static_cast<double>(random() % 16),
                          .velocity = 0.7F,
                          .key = 21 + static_cast<std::uint32_t>(random() % 88)});
}

/// Selects every tenth note.
inline void selectTenth(Sequence& sequence)
{
    for (std::size_t i = 0; i < kManyNotes; i += 10)
        sequence.select(sequence.at(i));
}

/// A host without an instrument, so that only the cost of finding the notes is measured.
class SilentHost : public SequenceHost {
public:
    void play(int /*key*/, float /*velocity*/, int /*channel*/, double /*time*/) override {}
    void stop(int /*key*/, int /*channel*/, double /*time*/) override {}
    LiveKeys& liveKeys() override { return liveKeys_; }

private:
    LiveKeys liveKeys_;
};

} // namespace velmora
