#pragma once

#include "platform/IntervalTimer.h"
#include "sequencer/AheadPlayer.h"

#include <QObject>

#include <memory>

namespace velmora {

class Transport;

/// Drives a document 1024 times in a second while it plays or records; what it plays keeps its time
/// while the main thread is busy. While it stands still nothing that it shows or sounds depends on
/// time, and no clock runs.
class SequenceClock : public QObject {
public:
    /// Runs as long as it lives, which ends before the document does.
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
