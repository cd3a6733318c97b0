#pragma once

#include "platform/IntervalTimer.h"
#include "sequencer/AheadPlayer.h"

#include <QObject>

#include <memory>

namespace velmora {

class Transport;

/// Ticks a transport 1024 times a second while it plays or records, and sounds its notes in time
/// even if the main thread is busy. While the transport is stopped, no timer runs.
class SequenceClock : public QObject {
public:
    /// The transport must outlive the clock.
    explicit SequenceClock(Transport& transport);
    ~SequenceClock() override;

private:
    void adjust();
    void end();

    Transport& transport_;
    std::unique_ptr<AheadPlayer> player_;
    std::unique_ptr<IntervalTimer> playTimer_;
};

} // namespace velmora
