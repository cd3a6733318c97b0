#include "import/xml.h"

#include "base/FormatError.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <limits>

namespace velmora {

namespace xml {

namespace {

/// Deeper nesting is a mistake or an attack: organ definitions use four levels.
constexpr std::size_t kMaximumDepth = 1000;

/// About as many bytes as an element takes in a file: memory is not touched before it is needed.
constexpr std::size_t kBytesOfElement = 16;

/// What ends a run of characters. The end of the bytes is a 0 like any other.
enum Class : unsigned char { kZero = 1, kWhite = 2, kGreater = 4, kLess = 8, kQuote = 16 };

constexpr std::array<unsigned char, 256> classes()
{
    std::array<unsigned char, 256> result{};
    result[0] = kZero;
    for (const char white : {'\t', '\n', '\r', ' '})
        result[static_cast<unsigned char>(white)] = kWhite;
    result['>'] = kGreater;
    result['<'] = kLess;
    result['"'] = kQuote;
    return result;
}

constexpr auto kClasses = classes();

bool is(char character, int mask)
{
    return (kClasses[static_cast<unsigned char>(character)] & mask) != 0;
}

/// The first position from `pos` on with a character of those classes. The mask has kZero in it.
std::uint32_t find(const char* data, std::uint32_t pos, int mask)
{
    while (true) {
        if (is(data[pos], mask))
            return pos;
        if (is(data[pos + 1], mask))
            return pos + 1;
        if (is(data[pos + 2], mask))
            return pos + 2;
        if (is(data[pos + 3], mask))
            return pos + 3;
        pos += 4;
    }
}

/// Steps over the character at `pos`, which was 0 at the end of the bytes: nothing follows that.
void step(const std::string& bytes, std::uint32_t& pos)
{
    if (pos < bytes.size())
        ++pos;
}

FormatError errorAt(const std::string& bytes, std::uint32_t pos, const std::string& message)
{
    const auto lineEnds = std::count(bytes.begin(), bytes.begin() + pos, '\n');
    return FormatError::atLine(static_cast<std::size_t>(lineEnds) + 1, message);
}

/// Reads from behind an element's name to behind the end of its start tag, and calls
/// `take(name, value)` for each attribute.
template <class Take>
void readAttributes(const std::string& bytes, std::uint32_t& pos, const Take& take)
{
    std::string name;
    while (true) {
        const char character = bytes[pos];
        step(bytes, pos);
        if (is(character, kZero | kGreater))
            return;
        if (is(character, kWhite))
            continue;
        if (character != '=') {
            name += character;
            continue;
        }
        if (bytes[pos] != '"')
            throw errorAt(bytes, pos, "the value of an attribute is not in double quotes");
        const std::uint32_t value = pos + 1;
        pos = find(bytes.data(), value, kZero | kQuote);
        take(name, std::string_view(bytes).substr(value, pos - value));
        step(bytes, pos);
        name.clear();
    }
}

} // namespace

Buffer::Buffer(std::string bytes) : data(std::move(bytes))
{
    if (data.size() >= std::numeric_limits<std::uint32_t>::max())
        throw FormatError("is too large");
}

std::string_view Node::name() const
{
    const auto& element = tree_->elements_[index_];
    return tree_->between(element.name, element.nameEnd);
}

Children Node::children() const
{
    return {*tree_, index_ + 1, tree_->elements_[index_].end, depth_ + 1};
}

std::map<std::string, std::string> Node::attributes() const
{
    const auto& element = tree_->elements_[index_];
    std::map<std::string, std::string> result;
    std::uint32_t pos = element.nameEnd;
    if (pos == element.content || tree_->bytes_[pos] == '>')
        return result;
    step(tree_->bytes_, pos);
    readAttributes(tree_->bytes_, pos, [&](const std::string& name, std::string_view value) {
        result.insert_or_assign(name, value);
    });
    return result;
}

std::string Node::text() const
{
    std::string result;
    std::uint32_t begin = tree_->elements_[index_].content;
    for (const Node child : children()) {
        const auto& element = tree_->elements_[child.index_];
        std::uint32_t end = element.name;
        while (!nws(tree_->bytes_[end - 1]))
            --end;
        result += tree_->between(begin, end - 1);
        begin = element.after;
    }
    return result += tree_->between(begin, tree_->elements_[index_].contentEnd);
}

void Node::debug(std::uint32_t indent) const
{
    tabs(indent);
    std::cout << name();
    if (const auto list = attributes(); !list.empty()) {
        std::cout << " { ";
        for (const auto& [attribute, value] : list)
            std::cout << attribute << "='" << value << "', ";
        std::cout << '}';
    }
    if (children().begin() == children().end()) {
        std::cout << " = '" << text() << "'\n";
        return;
    }
    std::cout << " [\n";
    for (const Node child : children())
        child.debug(indent + 1);
    tabs(indent);
    std::cout << "]\n";
}

Children::Iterator& Children::Iterator::operator++()
{
    index_ = tree_->elements_[index_].end;
    return *this;
}

std::string_view Tree::between(std::uint32_t begin, std::uint32_t end) const
{
    return std::string_view(bytes_).substr(begin, end - begin);
}

/// Appends the element whose start tag begins at `pos`, behind its '<', and steps behind the tag.
/// Whether its content follows.
bool Tree::parseStartTag(std::uint32_t& pos)
{
    const auto white = [this](std::uint32_t at) { return is(bytes_[at], kWhite); };
    while (white(pos))
        ++pos;

    Element element{pos, pos, pos, pos, pos, static_cast<std::uint32_t>(elements_.size()) + 1};
    bool open = false;
    if (bytes_[pos] != '\0') {
        pos = element.nameEnd = find(bytes_.data(), pos, kZero | kWhite | kGreater);
        const bool attributes = bytes_[pos] != '>';
        step(bytes_, pos);
        if (attributes)
            readAttributes(bytes_, pos, [](const std::string&, std::string_view) {});
        element.content = element.contentEnd = pos;
        open = pos < 2 || (bytes_[pos - 2] != '?' && bytes_[pos - 2] != '/');
        while (!open && white(pos))
            ++pos;
    }
    // An element without content takes with it the 0 or whatever else comes next.
    if (!open)
        step(bytes_, pos);
    element.after = pos;
    elements_.push_back(element);
    return open;
}

void Tree::parseNode(std::uint32_t& pos)
{
    std::vector<std::uint32_t> openElements;
    const auto parseElement = [&] {
        const auto index = static_cast<std::uint32_t>(elements_.size());
        if (parseStartTag(pos))
            openElements.push_back(index);
        if (openElements.size() > kMaximumDepth)
            throw errorAt(bytes_, pos, "elements are nested too deeply");
    };
    parseElement();
    while (!openElements.empty()) {
        pos = find(bytes_.data(), pos, kZero | kLess);
        if (bytes_[pos] == '<' && bytes_[pos + 1] != '/') {
            ++pos;
            parseElement();
            continue;
        }
        Element& element = elements_[openElements.back()];
        openElements.pop_back();
        element.contentEnd = pos;
        if (bytes_[pos] == '<')
            pos = find(bytes_.data(), pos + 2, kZero | kGreater);
        step(bytes_, pos);
        element.after = pos;
        element.end = static_cast<std::uint32_t>(elements_.size());
    }
}

Tree parseXML(Buffer buffer)
{
    Tree tree(std::move(buffer.data));
    tree.elements_.reserve(tree.bytes_.size() / kBytesOfElement);
    std::uint32_t pos = buffer.pos;
    tree.parseNode(pos);
    tree.elements_.clear();
    tree.parseNode(pos);
    return tree;
}

void tabs(std::uint32_t count)
{
    std::cout << std::string(count, '\t');
}

bool nws(const char& character)
{
    return !is(character, kWhite);
}

} // namespace xml

} // namespace velmora
