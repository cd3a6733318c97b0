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
    const auto at = std::min(static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)),
                             bytes.size());
    const std::string_view before = bytes.substr(0, at);
    const auto lines = static_cast<std::size_t>(std::ranges::count(before, '\n'));
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    throw FormatError::atColumn(lines + 1, column,
                                "the XML is damaged: " + lowerCase(result.description()));
}

} // namespace velmora
