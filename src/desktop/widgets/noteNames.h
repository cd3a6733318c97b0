#pragma once

#include <QString>

#include <string>

namespace velmora {

/// How the desktop names notes (docs/decisions.md, 142), as the preference "NoteNames" stores it.
enum class NoteNaming {
    ByLanguage,    ///< As musicians do in the language of the default locale.
    International, ///< C D E F G A B, with B♭ below B.
    German,        ///< C D E F G A H, with B below H.
    Solfege,       ///< Do Re Mi Fa Sol La Si, as the language writes them.
};

/// Returns the naming that is in use; never `ByLanguage`.
NoteNaming noteNaming();

/// Returns the name of MIDI key 0…127 with its octave. Key 61 is "C♯4", "Cis4" or "Do♯4".
QString noteText(unsigned key);

/// Returns the name of a pitch that is spelled as a letter from "A" to "G" and any number of "#" or
/// "b", such as "Bb" or "F##".
QString toneText(const std::string& spelling);

} // namespace velmora
