#include "midi/MidiFileHeader.h"

#include "base/FormatError.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>

namespace velmora {

namespace {

double ticksPerSecond(unsigned frames, unsigned ticksPerFrame, std::size_t at)
{
    // 29 means the drop-frame rate of 30 × 1000/1001 frames a second.
    if (frames == 29)
        return ticksPerFrame * 30000.0 / 1001.0;
    if (frames != 24 && frames != 25 && frames != 30)
        throw FormatError::atByte(
            at, fmt::format("the division has {} frames a second, not 24, 25, 29 or 30", frames));
    return ticksPerFrame * static_cast<double>(frames);
}

/// Returns the offset of the MIDI file: 0, or the end of the RIFF wrapper.
std::size_t startOfMidi(std::span<const std::byte> bytes)
{
    constexpr std::size_t kWrapper = 20;
    if (bytes.size() < kWrapper)
        return 0;
    const std::string_view start(reinterpret_cast<const char*>(bytes.data()), kWrapper);
    return start.starts_with("RIFF") && start.substr(8, 8) == "RMIDdata" ? kWrapper : 0;
}

MidiFileChunk readWholeChunk(MidiFileCursor& file)
{
    const std::size_t at = file.offset();
    const MidiFileChunk chunk = readMidiFileChunk(file);
    requireWhole(chunk, at);
    return chunk;
}

} // namespace

MidiFileCursor openMidiFile(std::span<const std::byte> bytes)
{
    return {bytes, startOfMidi(bytes), bytes.size(), "the file ends inside the header of a chunk"};
}

MidiFileChunk readMidiFileChunk(MidiFileCursor& file)
{
    const std::string_view id = file.text(4);
    file.skip(4);
    const std::uint32_t length = file.number(4);
    const std::size_t size = std::min<std::size_t>(length, file.left());
    return {id,
            file.part(size, id == "MTrk" ? "an event exceeds the end of its track"
                                         : "the header is too short"),
            length - size};
}

void requireWhole(const MidiFileChunk& chunk, std::size_t at)
{
    const std::size_t left = chunk.body.left();
    if (chunk.missing > 0)
        throw FormatError::atByte(
            at, fmt::format("a chunk of {} bytes is truncated: the file has only {} more",
                            left + chunk.missing, left));
}

MidiFileHeader readMidiFileHeader(MidiFileCursor& file)
{
    const std::size_t at = file.offset();
    if (file.text(4) != "MThd")
        throw FormatError::atByte(at, "this is not a Standard MIDI File: \"MThd\" is missing");
    MidiFileCursor body = readWholeChunk(file).body;
    const std::size_t begin = body.offset();
    const auto format = static_cast<std::uint16_t>(body.number(2));
    const std::uint32_t tracks = body.number(2);
    const auto division = static_cast<std::uint16_t>(body.number(2));
    if (format > 2)
        throw FormatError::atByte(begin, fmt::format("the format is {}, not 0, 1 or 2", format));
    if (tracks == 0)
        throw FormatError::atByte(begin + 2, "the header announces no tracks");

    const std::size_t divisionAt = begin + 4;
    if ((division & 0x8000u) == 0) {
        if (division == 0)
            throw FormatError::atByte(divisionAt, "the division is 0 ticks a quarter note");
        return {format, tracks, division, static_cast<double>(division), false};
    }
    const std::uint32_t ticksPerFrame = division & 0xFFu;
    if (ticksPerFrame == 0)
        throw FormatError::atByte(divisionAt, "the division is 0 ticks a frame");
    // The tempo map stays at its default of two beats a second.
    const double ticks = ticksPerSecond(0x100u - (division >> 8), ticksPerFrame, divisionAt);
    return {format, tracks, division, ticks / 2.0, true};
}

} // namespace velmora
