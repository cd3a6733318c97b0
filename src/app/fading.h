#pragma once

#include "sequencer/SequenceHost.h"

#include <chrono>

/// Released keys and the spellings of a temperament fade 60 times a second.
constexpr std::chrono::nanoseconds kFadeInterval{16'666'000};

/// One step of it, under the host's lock.
void fadeOnce(SequenceHost& host);
