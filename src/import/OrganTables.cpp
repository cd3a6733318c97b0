#include "import/OrganTables.h"

#include "base/FormatError.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "base/parseXml.h"

namespace velmora {

namespace {

/// Several times the size of the largest definitions. In memory a definition can take sixteen times
/// its size.
constexpr std::size_t kLargestDefinition = std::size_t{256} << 20;

std::string textOf(pugi::xml_node element)
{
    std::string result;
    for (const pugi::xml_node part : element) // comments and CDATA sections divide the text
        result += part.value();
    return result;
}

} // namespace

std::string OrganRow::text(const OrganColumn& column) const
{
    for (const pugi::xml_node field : object_) {
        const std::string_view name = field.name();
        if (name == column.name || name == column.letters)
            return textOf(field);
    }
    return {};
}

std::optional<int> OrganRow::integer(const OrganColumn& column) const
{
    return leadingInteger(text(column));
}

std::optional<double> OrganRow::number(const OrganColumn& column) const
{
    return leadingNumber(text(column));
}

bool OrganRow::flag(const OrganColumn& column, bool otherwise) const
{
    const std::string value = lowerCase(text(column));
    return value.empty() ? otherwise : value.starts_with('y');
}

OrganTables::OrganTables(const std::string& bytes)
{
    if (bytes.size() > kLargestDefinition)
        throw FormatError("is too large for an organ definition");
    document_ = parseXml(bytes);
    const pugi::xml_node root = document_.document_element();
    if (std::string_view(root.name()) != "Hauptwerk")
        throw FormatError("is not an organ definition: its root element is not \"Hauptwerk\"");
    for (const pugi::xml_node list : root.children("ObjectList")) {
        auto& rows = tables_[lowerCase(list.attribute("ObjectType").value())];
        for (const pugi::xml_node object : list) {
            if (object.type() == pugi::node_element)
                rows.emplace_back(object);
        }
    }
}

const std::vector<OrganRow>& OrganTables::rows(std::string_view table) const
{
    static const std::vector<OrganRow> none;
    const auto found = tables_.find(lowerCase(std::string(table)));
    return found == tables_.end() ? none : found->second;
}

} // namespace velmora
