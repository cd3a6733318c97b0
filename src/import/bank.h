#pragma once

#include "base/FormatError.h"
#include "import/RIFF.h"

#include <cstdint>
#include <string>

namespace velmora {

struct Import;

/// Shared code of the importers of sample banks.
namespace bank {

/// Returns a required child of a list. Throws FormatError if it is missing.
template <class Element> const Element& require(const RIFF::List& list, const char (&name)[5])
{
    if (const auto* found = list.get<Element>(RIFF::code(name)))
        return *found;
    throw FormatError("is missing the chunk \"" + std::string(name) + "\"");
}

/// Reports the last `steps` steps of reading sounds, with a text for the user.
void reportDone(std::size_t steps, const std::string& text, const Import& import);

/// Throws FormatError if the sounds that share a pool of `poolBytes` have so many bytes that no
/// real bank could need them, and MemoryShortage if they do not fit into the free memory.
void requireMemory(std::uint64_t soundBytes, std::uint64_t poolBytes, const Import& import);

/// Completes the report and draws the first stop. Throws FormatError if no key sounds.
void finish(Import& import);

} // namespace bank

} // namespace velmora
