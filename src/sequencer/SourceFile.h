#pragma once

#include "base/FormatError.h"
#include "midi/MidiFileEvents.h"
#include "sequencer/Controllers.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/Voices.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

class Sequence;
struct Note;

/// The Standard MIDI File from which a document was opened. It keeps everything that the file says,
/// so that saving the document changes only what was edited: tempo, signatures, names, lyrics,
/// controllers and the division into tracks stay.
class SourceFile {
public:
    /// A file without events, for a new document.
    SourceFile();

    /// Reads a file and adds its notes to an empty sequence, which is sorted afterwards. Notes
    /// without length stay in the file alone. Each note knows by `Note::origin` where it comes
    /// from. Throws FormatError if nothing could be read.
    SourceFile(std::vector<std::byte> bytes, Sequence& sequence);

    const std::vector<std::byte>& bytes() const { return bytes_; }

    /// The tempos and bars of the file.
    const MusicalTime& time() const { return time_; }

    /// The pedals and other controllers of the file.
    const Controllers& controllers() const { return controllers_; }

    /// Why the file could not be read to its end; nothing if it was read whole.
    const std::optional<FormatError>& damage() const { return damage_; }

    /// The voices as the file has them.
    const Voices& voices() const { return voices_; }

    /// The programs that they change to.
    const ProgramChanges& programChanges() const { return programChanges_; }

    /// Returns the bytes of the file with the notes of a sequence, the tempos, signatures and
    /// markers of `time`, the voices and the controllers in place of its own; what is equal stays
    /// as it is in the file. Notes that were not edited keep their events; others stand in the
    /// track that they come from, or in the first one with notes on their channel. If edited notes
    /// need finer times than the file has, its ticks are divided; their place in the music stays.
    /// Throws std::length_error if a note or a change is later than a file can hold.
    std::string write(const Sequence& sequence, const MusicalTime& time, const Voices& voices,
                      const Controllers& controllers) const;

private:
    std::vector<std::byte> bytes_;
    std::optional<FormatError> damage_;
    MusicalTime time_;
    Voices voices_ = newVoices();
    ProgramChanges programChanges_;
    Controllers controllers_;
};

} // namespace velmora
