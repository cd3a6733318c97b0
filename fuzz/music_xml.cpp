// Reads the input as a score, compressed or not, and turns it into a MIDI file.

#include "base/FormatError.h"
#include "midi/StandardMidiFile.h"
#include "notation/readMusicXml.h"
#include "require.h"
#include "sequencer/scoreFile.h"

#include <cstdint>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const Piece piece = readMusicXml({reinterpret_cast<const char*>(data), size});
        std::size_t notes = 0;
        for (const Piece::Part& part : piece.parts) {
            notes += part.notes.size();
            for (const Piece::Note& note : part.notes)
                require(note.key < 128 && note.start >= 0.0 && note.length > 0.0 &&
                        note.velocity >= 0.0F && note.velocity <= 1.0F);
        }
        const std::string midi = midiFileOf(piece);
        std::size_t kept = 0;
        for (const auto& track : readStandardMidiFile(std::as_bytes(std::span(midi))).tracks)
            for (const MidiEvent& event : track)
                kept += event.kind == MidiEvent::Kind::Note ? 1 : 0;
        require(kept == notes);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
