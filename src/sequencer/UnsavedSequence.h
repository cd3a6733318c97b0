#pragma once

#include "sequencer/Sequence.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// A document that is not saved yet, as it is kept against a crash.
struct UnsavedSequence {
    std::filesystem::path path; ///< Of the document's file; empty where it has none.
    std::chrono::sys_time<std::chrono::milliseconds> time; ///< When it was kept.
    bool isImported = false;

    /// In the document's order. Kept are the times, keys, channels and velocities, all exactly;
    /// identities and flags mean nothing here.
    std::vector<Note> notes;
};

/// The bytes of a recovery file: big-endian, 4 bytes "VREC", the version, path, time, isImported,
/// the number of the notes, and of each its start, length, oldStart, oldLength and velocity as
/// doubles and its channel, key and oldKey as numbers of 32 bits.
std::string encodeUnsaved(const UnsavedSequence& sequence);

/// Throws FormatError with the byte where they are not the bytes of a recovery file of this version
/// or hold what is no note. The notes are as `makeValid` makes them.
UnsavedSequence decodeUnsaved(std::span<const std::byte> bytes);

} // namespace velmora
