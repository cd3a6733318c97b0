#include "sequencer/FileEdits.h"

#include "midi/messages.h"

#include <algorithm>

namespace velmora {

void FileEdits::addMeta(std::size_t track, double step, std::uint8_t type, const std::string& data)
{
    std::string length(1, static_cast<char>(data.size() & 0x7F));
    for (std::size_t rest = data.size() >> 7; rest > 0; rest >>= 7)
        length.insert(0, 1, static_cast<char>((rest & 0x7F) | midi::kStatusBit));
    add({track, step, midi::kMetaEvent, static_cast<char>(type) + length + data});
}

bool FileEdits::drops(const FileEvent& event) const
{
    return std::ranges::any_of(drops_, [&](const auto& isDropped) { return isDropped(event); });
}

} // namespace velmora
