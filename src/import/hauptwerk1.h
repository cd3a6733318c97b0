#pragma once

#include "import/Import.h"
#include "import/Organ.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace velmora {

namespace hauptwerk1 {

/// The values of a section by key.
using Section = std::map<std::string, std::string>;

/// The sections of a file by name.
using Sections = std::map<std::string, Section>;

enum class LineEnd { CarriageReturnLineFeed, LineFeed };

/// Parses the "[section]" and "key=value" lines of a version 1 organ definition. A section that is
/// repeated replaces the earlier one. If a file has other line ends than `lineEnd`, its values lose
/// their last character or keep a carriage return. With `CarriageReturnLineFeed` an unterminated
/// last line is ignored.
Sections readSections(std::string_view bytes, LineEnd lineEnd);

/// Returns the stops and pipes of the sections. Sample files are looked up relative to `folder`.
/// Pipes whose stop or key does not exist are skipped.
Organ findPipes(const Sections& sections, const std::filesystem::path& folder);

} // namespace hauptwerk1

/// Imports a Hauptwerk organ definition of version 1 with its samples. Each section whose name
/// starts with "Stop" becomes a stop. Throws FormatError and Cancelled.
void readHauptwerk1(const std::filesystem::path& path, Import& import);

} // namespace velmora
