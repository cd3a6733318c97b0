#include "base/parseXml.h"

#include "base/FormatError.h"
#include "base/Text.h"

#include <algorithm>
#include <cstddef>

namespace velmora {

pugi::xml_document parseXml(std::string_view bytes)
{
    pugi::xml_document document;
    const auto result = document.load_buffer(bytes.data(), bytes.size());
    if (result)
        return document;
    const auto at = static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0));
    const auto lines = std::ranges::count(bytes.substr(0, std::min(at, bytes.size())), '\n');
    throw FormatError::atLine(static_cast<std::size_t>(lines) + 1,
                              "the XML is damaged: " + lowerCase(result.description()));
}

} // namespace velmora
