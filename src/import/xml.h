#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A small, forgiving reader of XML: elements, attributes in double quotes, and text. Entities,
/// comments, CDATA sections and document types are not recognised; a comment is read as an element.
namespace xml {

/// The bytes of a file and how far they have been read.
struct Buffer {
    /// Throws FormatError for 4 GiB or more.
    explicit Buffer(std::string bytes);

    std::string data;
    std::uint32_t pos = 0;
};

class Tree;
class Children;

/// One element of a tree, which must outlive it and stay where it is.
class Node {
public:
    /// The element's name; a self-closing tag without white space keeps its slash: "name/".
    std::string_view name() const;

    /// Nesting depth; the root is 0.
    std::uint32_t depth() const { return depth_; }

    /// The elements directly inside, in document order.
    Children children() const;

    /// Attributes by name, values as they stand in the file. A repeated name keeps the last value.
    std::map<std::string, std::string> attributes() const;

    /// All characters directly inside the element, as they stand in the file, put together.
    std::string text() const;

    /// Prints the element and what is in it to standard output, `indent` tabs to the right.
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
    /// None.
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

/// The root element of a document, with everything in it and the file's bytes.
class Tree {
public:
    Node root() const { return {*this, 0, 0}; }

private:
    friend class Node;
    friend class Children::Iterator;
    friend Tree parseXML(Buffer);

    /// An element by positions in the bytes. Elements stand in the order of their start tags, so
    /// that the first child of one follows it.
    struct Element {
        std::uint32_t name = 0;       ///< where the name begins
        std::uint32_t nameEnd = 0;    ///< behind its last character
        std::uint32_t content = 0;    ///< behind the start tag
        std::uint32_t contentEnd = 0; ///< where the end tag begins
        std::uint32_t after = 0;      ///< where the parent's content goes on
        std::uint32_t end = 0;        ///< index of the first element that is not inside this one
    };

    explicit Tree(std::string bytes) : bytes_(std::move(bytes)) {}
    void parseNode(std::uint32_t& pos);
    bool parseStartTag(std::uint32_t& pos);
    std::string_view between(std::uint32_t begin, std::uint32_t end) const;

    std::string bytes_;
    std::vector<Element> elements_;
};

/// Reads the document from the buffer's position on: skips one node, which is the XML declaration,
/// and takes the next one as the root. Without a declaration the root is lost and one without a
/// name is returned, as it is where the file has no elements. Throws FormatError with the line
/// where an attribute's value is not in double quotes, and where elements are nested too deeply.
Tree parseXML(Buffer buffer);

/// Writes so many tab characters to standard output.
void tabs(std::uint32_t count);

/// Whether a character is not white space: tab, line feed, carriage return or space.
bool nws(const char& character);

} // namespace xml

} // namespace velmora
