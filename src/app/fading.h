#pragma once

#include "sequencer/SequenceHost.h"

#include <chrono>

namespace velmora {

/// Released keys and the spellings of a temperament fade 60 times a second.
constexpr std::chrono::nanoseconds kFadeInterval{16'666'000};

/// By how much in one step.
constexpr double kFadeFactor = 0.9;

/// One step of the current instrument and temperament, under the host's lock.
void fadeOnce(SequenceHost& host);

} // namespace velmora
