#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora {

/// A small, lenient XML reader for elements, attributes in double quotes, and text. It does not
/// recognise entities, comments, CDATA sections and document types; a comment is read as an
/// element.
namespace xml {

/// The bytes of a file and a read position.
struct Buffer {
    /// Throws FormatError if there are 4 GiB or more.
    explicit Buffer(std::string bytes);

    std::string data;
    std::uint32_t pos = 0;
};

class Tree;
class Children;

/// A reference to one element of a tree. The tree must outlive it and must not be moved.
class Node {
public:
    /// The element's name. The name of a self-closing tag keeps the slash if no white space
    /// precedes it: "name/".
    std::string_view name() const;

    /// The nesting depth; 0 for the root.
    std::uint32_t depth() const { return depth_; }

    /// The direct child elements in document order.
    Children children() const;

    /// The attributes by name, with undecoded values. A repeated name keeps its last value.
    std::map<std::string, std::string> attributes() const;

    /// All text directly inside the element, joined and undecoded.
    std::string text() const;

    /// Logs the element and its descendants at debug level, indented by `indent` tabs. Helps to
    /// find out why a definition is not read as expected.
    void debug(std::uint32_t indent) const;

private:
    friend class Children;
    friend class Tree;
    Node(const Tree& tree, std::uint32_t index, std::uint32_t depth)
        : tree_(&tree), index_(index), depth_(depth)
    {
    }

    const Tree* tree_;
    std::uint32_t index_;
    std::uint32_t depth_;
};

/// The children of an element, for a range-based loop.
class Children {
public:
    /// Creates an empty list.
    Children() = default;

    class Iterator {
    public:
        Node operator*() const { return {*tree_, index_, depth_}; }
        Iterator& operator++();
        bool operator==(const Iterator&) const = default;

    private:
        friend class Children;
        Iterator(const Tree* tree, std::uint32_t index, std::uint32_t depth)
            : tree_(tree), index_(index), depth_(depth)
        {
        }

        const Tree* tree_;
        std::uint32_t index_;
        std::uint32_t depth_;
    };

    Iterator begin() const { return {tree_, first_, depth_}; }
    Iterator end() const { return {tree_, end_, depth_}; }

private:
    friend class Node;
    Children(const Tree& tree, std::uint32_t first, std::uint32_t end, std::uint32_t depth)
        : tree_(&tree), first_(first), end_(end), depth_(depth)
    {
    }

    const Tree* tree_ = nullptr;
    std::uint32_t first_ = 0;
    std::uint32_t end_ = 0;
    std::uint32_t depth_ = 0;
};

/// A parsed document. Owns the bytes of the file and all elements.
class Tree {
public:
    Node root() const { return {*this, 0, 0}; }

private:
    friend class Node;
    friend class Children::Iterator;
    friend Tree parseXML(Buffer);

    /// An element as positions in the bytes. Elements are stored in the order of their start tags,
    /// so the first child of an element directly follows it.
    struct Element {
        std::uint32_t name = 0;       ///< Start of the name.
        std::uint32_t nameEnd = 0;    ///< End of the name.
        std::uint32_t content = 0;    ///< End of the start tag.
        std::uint32_t contentEnd = 0; ///< Start of the end tag.
        std::uint32_t after = 0;      ///< End of the end tag.
        std::uint32_t end = 0;        ///< Index of the next element that is not a descendant.
    };

    explicit Tree(std::string bytes) : bytes_(std::move(bytes)) {}
    void parseNode(std::uint32_t& pos);
    bool parseStartTag(std::uint32_t& pos);
    std::string_view between(std::uint32_t begin, std::uint32_t end) const;

    std::string bytes_;
    std::vector<Element> elements_;
};

/// Parses a document from the buffer's position. Skips the first node, which is expected to be the
/// XML declaration, and returns the second as the root. Without a declaration the root element is
/// lost, and a root without a name is returned, as for a file without elements. Throws FormatError
/// with the line if the value of an attribute is not in double quotes or elements are nested too
/// deeply.
Tree parseXML(Buffer buffer);

/// Returns `count` tab characters.
std::string tabs(std::uint32_t count);

/// Returns false for white space (tab, line feed, carriage return, space), true otherwise.
bool nws(const char& character);

} // namespace xml

} // namespace velmora
