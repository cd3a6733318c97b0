#pragma once

#include "import/Import.h"
#include "import/Organ.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace velmora {

namespace hauptwerk1 {

/// A section's values by their keys.
using Section = std::map<std::string, std::string>;

/// Sections by their names.
using Sections = std::map<std::string, Section>;

enum class LineEnd { CarriageReturnLineFeed, LineFeed };

/// Reads an organ definition of version 1: "[section]" and "key=value" lines. A section that comes
/// again begins anew. With the wrong line end, a line loses its last character or keeps one too
/// many; with the first, a last line without a line feed is not read.
Sections readSections(std::string_view bytes, LineEnd lineEnd);

/// The stops and pipes of the sections, with sample files relative to a folder. A pipe whose stop
/// or key does not exist is skipped. Throws FormatError where there are too many stops.
Organ findPipes(const Sections& sections, const std::filesystem::path& folder);

} // namespace hauptwerk1

/// Imports a Hauptwerk organ definition of version 1 with its samples: a stop for each section
/// whose name begins with "Stop". Throws FormatError and Cancelled.
void readHauptwerk1(const std::filesystem::path& path, Import& import);

} // namespace velmora
