// Parses the input as XML and as an organ definition, and reads everything in the tree.

#include "import/xml.h"
#include "base/FormatError.h"
#include "import/OrganDefinition.h"
#include "require.h"

namespace velmora {

namespace {

/// Returns the total length of all names, texts and attributes below a node.
std::size_t lengthOf(const xml::Node& node)
{
    std::size_t length = node.name().size() + node.text().size();
    for (const auto& [name, value] : node.attributes())
        length += name.size() + value.size();
    for (const xml::Node child : node.children()) {
        require(child.depth() == node.depth() + 1);
        length += lengthOf(child);
    }
    return length;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        require(lengthOf(xml::parseXML(xml::Buffer(bytes)).root()) <= size);
    } catch (const FormatError&) {
        return 0;
    }
    try {
        const OrganDefinition organ = readOrganDefinition(bytes);
        require(organ.pipes.size() <= size && organ.files.size() <= size);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
