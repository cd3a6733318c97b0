#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace velmora {

class Tunings;

/// The usual pitches of A in hertz, and the one that the tuning has, which is empty.
std::vector<std::optional<double>> usualPitches();

/// Returns the text of a pitch of A, as in "A 415 Hz".
QString pitchText(const std::optional<double>& a);

/// Changes only the pitch of A.
void setA(Tunings& tunings, const std::optional<double>& a);

/// Moves the root up by so many semitones.
void moveRoot(Tunings& tunings, int semitones);

/// Returns the title of a tuning with the root and the pitch, as far as they are not the usual
/// ones: "Vallotti on D, A 415 Hz".
QString standingTitle(const QString& title, const Tunings& tunings);

} // namespace velmora
