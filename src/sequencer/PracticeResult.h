#pragma once

#include "sequencer/MusicalTime.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

/// A right key of a practice session.
struct PracticeStroke {
    double step; ///< Where its note stands in the piece.
    std::uint32_t key;
    double delay; ///< By how many seconds it was late; negative if it was early.
};

/// A key that the piece did not want, or one that it wanted in vain.
struct PracticeMistake {
    double step; ///< Where the piece was when the key was struck, or where the note stands.
    std::uint32_t key;
};

/// What the user has played in a practice session.
struct PracticeResult {
    std::vector<PracticeStroke> strokes;
    std::vector<PracticeMistake> wrong;
    std::vector<PracticeMistake> missed; ///< Only if the piece did not wait.
    int passes = 0;
    int cleanPasses = 0; ///< Without a mistake.
    double speed = 1.0;  ///< At the end, as `Transport::speed`.
};

/// What the user has played of one bar, in all passes.
struct PracticeBar {
    int number = 0; ///< As in `Bar`.
    int right = 0;
    int wrong = 0;
    int missed = 0;

    bool operator==(const PracticeBar&) const = default;
};

/// A practice session in figures.
struct PracticeSummary {
    /// Keys that are off by less than this many seconds are neither early nor late.
    static constexpr double kOnTime = 0.05;

    /// The classes of delays: each is 20 ms wide, and the one in the middle is around 0. The first
    /// and the last one also hold everything beyond them.
    static constexpr double kDelayClass = 0.02;
    static constexpr std::size_t kDelayClasses = 25;

    int right = 0; ///< All right keys, the early and the late ones too.
    int wrong = 0;
    int missed = 0;
    int early = 0;
    int late = 0;
    int passes = 0;
    int cleanPasses = 0;
    double speed = 1.0;
    double medianDelay = 0.0; ///< In seconds; a long pause before one key does not count more.
    std::array<int, kDelayClasses> delays{}; ///< How many right keys are in each class.
    std::vector<PracticeBar> bars{};         ///< Those with any key, in order.

    bool operator==(const PracticeSummary&) const = default;
};

PracticeSummary summarize(const PracticeResult& result, const MusicalTime& time);

} // namespace velmora
