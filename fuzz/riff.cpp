// Parses the input as a RIFF file and reads all chunks.

#include "import/RIFF.h"
#include "base/FormatError.h"
#include "require.h"

#include <array>

namespace velmora {

namespace {

/// Checks the children of a list, whose data must end by `end`; returns the number of chunks.
std::size_t check(const RIFF::List& list, std::size_t end, int depth)
{
    require(depth <= 32);
    std::size_t count = 0;
    for (const auto& child : list.children()) {
        ++count;
        const auto bytes = child->read<char>();
        require(bytes.size() == child->length() && bytes.size() <= child->size());
        require(bytes.empty() || child->offset() + bytes.size() <= end);
        require(child->read<std::array<char, 46>>().size() == bytes.size() / 46);
        require(list.get<RIFF::Chunk>(child->type()) != nullptr);
        const auto* inner = dynamic_cast<const RIFF::List*>(child.get());
        const auto* found = list.get<RIFF::List>(child->type());
        require(list.all<RIFF::List>(child->type()).front() == found);
        if (inner != nullptr)
            count += check(*inner, child->offset() + child->length(), depth + 1);
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const RIFF::File file(std::as_bytes(std::span(data, size)));
        require(check(file, size, 0) <= size / 8);
        RIFF::readText(file.get<RIFF::Chunk>(RIFF::code("INAM")));
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
