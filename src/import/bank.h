#pragma once

#include "base/FormatError.h"
#include "import/RIFF.h"

#include <string>

namespace velmora {

struct Import;

/// What the importers of sample banks have in common.
namespace bank {

/// An element that a bank cannot be without. Throws FormatError where it is missing.
template <class Element> const Element& require(const RIFF::List& list, const char (&name)[5])
{
    if (const auto* found = list.get<Element>(RIFF::code(name)))
        return *found;
    throw FormatError("has no \"" + std::string(name) + "\"");
}

/// Ends an import: counts what sounds and lets the first stop be heard. Throws FormatError where
/// no key sounds.
void finish(Import& import);

} // namespace bank

} // namespace velmora
