#pragma once

#include "import/PipeOrgan.h"

#include <optional>
#include <span>
#include <vector>

namespace velmora {

// MIDI notes with fractions, in equal temperament with A at 440 Hz.

/// The most semitones between the pitch of an organ and that of today.
constexpr double kFarthestOffset = 3.0;

double hertzOfNote(double note);

/// The note that the recording of a pipe is expected to have.
double expectedNote(const PipeOrgan::Pipe& pipe);

/// What is known about the pitch of a recording.
struct RecordedPitch {
    double expected = 0.0;       ///< The note of the pipe that plays it.
    std::optional<double> note;  ///< The note in the sample file.
    double harmonicNumber = 8.0; ///< Of the pipe.
};

/// Understands the notes in the sample files of a rank. They may be written for the key instead of
/// the sound, and the organ may be up to three semitones from A at 440 Hz. Notes that do not fit
/// the others, such as a default that was never changed, count as missing. See docs/decisions.md,
/// 170.
class RankPitch {
public:
    /// Starts with what is known about the whole rank.
    explicit RankPitch(std::span<const RecordedPitch> recordings);

    /// Returns the note that a recording has. `others` are the notes that are expected of other
    /// pipes with the same file.
    double noteOf(const RecordedPitch& recording, std::span<const double> others = {}) const;

private:
    double written(const RecordedPitch& recording) const;

    bool isForKeys_ = false; ///< The notes are those of the keys, whatever the pipes' lengths.
    double offset_ = 0.0;    ///< Of the organ's pitch, in semitones.
};

} // namespace velmora
