#include "sequencer/SequenceClock.h"

#include "sequencer/SequenceTime.h"
#include "sequencer/Transport.h"

namespace velmora {

SequenceClock::SequenceClock(Transport& transport) : transport_(transport)
{
    // Queued, so that the tick that ends playing does not destroy its own timer.
    connect(
        &transport, &Transport::modeChanged, this, [this] { adjust(); }, Qt::QueuedConnection);
    adjust();
}

SequenceClock::~SequenceClock()
{
    end();
}

void SequenceClock::end()
{
    playTimer_.reset();
    transport_.stop();
    transport_.playback().playAhead(nullptr);
    player_.reset();
}

void SequenceClock::adjust()
{
    if (transport_.mode() == Transport::Mode::Stopped) {
        end();
    } else if (!playTimer_) {
        player_ = std::make_unique<AheadPlayer>(transport_.host());
        transport_.playback().playAhead(player_.get());
        transport_.tick(); // the timer may have to wait until the windows are painted
        playTimer_ = std::make_unique<IntervalTimer>(
            std::chrono::duration_cast<std::chrono::nanoseconds>(kTick),
            [this] { transport_.tick(); });
    }
}

} // namespace velmora
