#pragma once

#include "base/Clock.h"
#include "sequencer/RecoveryKeeper.h"
#include "sequencer/SequenceClock.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <algorithm>
#include <optional>

/// A document as a window has it.
struct OpenSequence {
    enum class Time { Real, Fast };

    /// One that is fast runs on a clock that is moved by hand, ahead of the time.
    OpenSequence(SequenceHost& host, Time time)
        : document(
              host, time == Time::Real ? std::function(getTime) : [this] { return now; })
    {
        if (time == Time::Real)
            clock.emplace(document);
    }
    ~OpenSequence() { document.stop(); }
    OpenSequence(const OpenSequence&) = delete;
    OpenSequence& operator=(const OpenSequence&) = delete;

    void tick()
    {
        now = std::max(now + 1.0 / 1024.0, getTime());
        if (!clock)
            document.loop();
    }

    double now = getTime();
    SequenceDocument document;
    SequenceEditor editor{document};
    RecoveryKeeper keeper{document, RecoveryFile(), std::chrono::milliseconds(100)};
    std::optional<SequenceClock> clock;
};
