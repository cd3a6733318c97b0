#pragma once

#include <pugixml.hpp>

#include <string_view>

namespace velmora {

/// Reads an XML document. Throws FormatError, with the line and the column, if it is damaged.
pugi::xml_document parseXml(std::string_view bytes);

} // namespace velmora
