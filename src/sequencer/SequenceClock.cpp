#include "sequencer/SequenceClock.h"

#include "sequencer/SequenceDocument.h"

namespace {

constexpr std::chrono::nanoseconds kTick{976'562};

} // namespace

SequenceClock::SequenceClock(SequenceDocument& document) : document_(document)
{
    // Queued: the tick that ends the playing does not end its own timer.
    connect(
        &document, &SequenceDocument::modeChanged, this, [this] { adjust(); },
        Qt::QueuedConnection);
    adjust();
}

void SequenceClock::adjust()
{
    if (document_.mode() == SequenceDocument::Mode::Stopped)
        playTimer_.reset();
    else if (!playTimer_)
        playTimer_ = std::make_unique<IntervalTimer>(kTick, [this] { document_.loop(); });
}
