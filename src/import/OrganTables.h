#pragma once

#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A column of an XML organ definition. Compacted rows name it by its letters.
struct OrganColumn {
    const char* name;
    const char* letters;
};

/// An object of a table. It refers to the tables, which must outlive it. A compacted row leaves out
/// the fields that have their default, and so may any other.
class OrganRow {
public:
    explicit OrganRow(pugi::xml_node object) : object_(object) {}

    /// The text of a field; empty if the row does not have it.
    std::string text(const OrganColumn& column) const;

    /// The number at the beginning of a field; nothing if the row does not have one.
    std::optional<int> integer(const OrganColumn& column) const;
    std::optional<double> number(const OrganColumn& column) const;

    /// The identifier in a field; 0 if the row does not have it.
    int id(const OrganColumn& column) const { return integer(column).value_or(0); }

    /// True for "Y", false for "N", and `otherwise` if the row does not have the field.
    bool flag(const OrganColumn& column, bool otherwise) const;

private:
    pugi::xml_node object_;
};

/// The tables of an XML organ definition, with everything that XML allows: comments, CDATA
/// sections, entities and empty elements.
class OrganTables {
public:
    /// Throws FormatError, with the line if the XML is damaged, if the bytes are not an organ
    /// definition.
    explicit OrganTables(const std::string& bytes);

    /// The rows of a table in the order of the file; empty if there is no such table. The case of
    /// ASCII letters in its name does not matter.
    const std::vector<OrganRow>& rows(std::string_view table) const;

private:
    pugi::xml_document document_;
    std::map<std::string, std::vector<OrganRow>> tables_; ///< By their names in lower case.
};

} // namespace velmora
