#include "sequencer/SequenceClock.h"

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceTime.h"

namespace velmora {

SequenceClock::SequenceClock(SequenceDocument& document) : document_(document)
{
    // Queued: the tick that ends the playing does not end its own timer.
    connect(
        &document, &SequenceDocument::modeChanged, this, [this] { adjust(); },
        Qt::QueuedConnection);
    adjust();
}

SequenceClock::~SequenceClock()
{
    end();
}

void SequenceClock::end()
{
    playTimer_.reset();
    document_.stop();
    document_.playAhead(nullptr);
    player_.reset();
}

void SequenceClock::adjust()
{
    if (document_.mode() == SequenceDocument::Mode::Stopped) {
        end();
    } else if (!playTimer_) {
        player_ = std::make_unique<AheadPlayer>(document_.host());
        document_.playAhead(player_.get());
        playTimer_ = std::make_unique<IntervalTimer>(
            std::chrono::duration_cast<std::chrono::nanoseconds>(kTick),
            [this] { document_.loop(); });
    }
}

} // namespace velmora
