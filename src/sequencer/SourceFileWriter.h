#pragma once

#include "midi/MidiFileEvents.h"
#include "sequencer/FileEdits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class Sequence;
struct Note;

/// Puts the notes of a sequence into the events of the file that they come from.
class SourceFileWriter {
public:
    /// The sequence and the edits must outlive the writer.
    SourceFileWriter(MidiFileEvents file, const Sequence& sequence, const FileEdits& edits);

    /// Returns the bytes of the file. Throws std::length_error if a note is later than a file can
    /// hold.
    std::string write() const;

private:
    /// An event that is written.
    struct Event {
        std::uint64_t tick;
        int order;          ///< Among the events of a tick.
        std::uint32_t note; ///< Which note the event starts or ends; 0 for none.
        std::uint8_t status;
        std::array<char, 2> message; ///< The key and the velocity of a note event.
        std::string_view data;       ///< What follows the status of any other event.
    };

    /// What becomes of a note of the file.
    struct Fate {
        const Note* note = nullptr; ///< Null if it was deleted.
        bool isKept = false;        ///< True if its events stay as they are.
    };

    void findFates(const Sequence& sequence);
    void divideTicks(const std::vector<const Note*>& edited);
    std::size_t trackFor(const Note& note) const;
    double tickAt(double step) const;
    bool isUnchanged(const Note& note, const FileTrack& track, const FileNote& fileNote) const;

    std::string writeTrack(std::size_t index) const;
    std::uint64_t addOtherEvents(std::size_t index, std::vector<Event>& events) const;
    void addFileEvents(std::size_t index, std::uint64_t end, std::vector<Event>& events) const;
    std::uint64_t addEditedNotes(std::size_t index, std::vector<Event>& events) const;
    void addNote(const Note& note, char releaseVelocity, std::uint32_t id,
                 std::vector<Event>& events) const;
    static std::string bytesOf(const std::vector<Event>& events, std::uint64_t end);

    MidiFileEvents file_;
    const FileEdits& edits_;
    std::vector<std::vector<FileNote>> notes_;    ///< Of each track.
    std::vector<std::vector<Fate>> fates_;        ///< Of each of them.
    std::vector<std::vector<const Note*>> added_; ///< The new notes of each track.
    std::uint64_t factor_ = 1;                    ///< Into how many parts a tick is divided.
};

/// Returns the tick at which a note of a track ends.
std::uint64_t endOf(const FileNote& note, const FileTrack& track);

} // namespace velmora
