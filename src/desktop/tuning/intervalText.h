#pragma once

#include "app/TuningMoment.h"

#include <QString>

#include <array>
#include <string>

namespace velmora {

/// Returns a distance in cents with its sign and one decimal: "+13.7".
QString centsText(double cents);

/// Returns the name of an interval and its nearest pure ratio: "Major third 5/4".
QString intervalText(const HeardInterval& heard);

/// Returns the beats of an interval per second, or that it does not beat.
QString beatsText(double beatsPerSecond);

/// Returns the name of a chord: "C major, first inversion". The names are those of the pitch
/// classes, as `spelling` writes them.
QString chordText(const Chord& chord, const std::array<std::string, 12>& names);

/// Returns what a purity is called.
QString purityText(Purity purity);

/// Returns the name of a key with its octave, spelled: "G♭4".
QString spelledKeyText(unsigned key, const std::array<std::string, 12>& names);

} // namespace velmora
