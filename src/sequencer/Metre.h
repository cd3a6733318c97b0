#pragma once

#include "audio/Click.h"

#include <vector>

namespace velmora {

class MusicalTime;

/// A moment at which the metronome clicks.
struct Beat {
    double step;
    Click click;
};

/// When the metronome clicks, as the user has chosen.
struct MetronomeSettings {
    bool whilePlaying = false;
    bool whileRecording = false;
    bool divides = false; ///< Clicks the parts of a beat as well.
    int countIn = 0;      ///< The bars that are counted before a recording, 0 to 2.

    bool operator==(const MetronomeSettings&) const = default;
};

/// Returns the beats of a piece from one step up to another one, which is not included.
std::vector<Beat> beatsBetween(const MusicalTime& time, double from, double to, bool divides);

/// What is counted before a recording.
struct CountIn {
    std::vector<Beat> beats; ///< Their steps are counted from the first of them.
    double length = 0.0;     ///< In steps.
};

/// Returns the beats of so many bars that lead to a step. Their bars are like the one at that step.
CountIn countInTo(const MusicalTime& time, double step, int bars, bool divides);

} // namespace velmora
