#include "import/xml.h"

#include "base/FormatError.h"
#include "base/Log.h"

#include <algorithm>
#include <array>
#include <limits>

namespace velmora {

namespace xml {

namespace {

/// Organ definitions use four levels; much deeper nesting is a mistake or an attack.
constexpr std::size_t kMaximumDepth = 1000;

/// A low estimate of the bytes that an element takes in a file. Memory reserved in excess is never
/// touched and so costs nothing.
constexpr std::size_t kBytesPerElement = 16;

/// Classes of characters that end a run. The end of the bytes counts as a 0 character.
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

/// Returns the first position from `pos` with a character of the classes in `mask`, which must
/// include kZero.
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

/// Advances by one character, but not beyond the end of the bytes.
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

/// Reads from the end of an element's name to the end of its start tag and calls `take(name,
/// value)` for each attribute.
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
        // See docs/decisions.md, 80.
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
    const Logger log = logger("import");
    std::string line = tabs(indent).append(name());
    if (const auto list = attributes(); !list.empty()) {
        line += " { ";
        for (const auto& [attribute, value] : list)
            line.append(attribute).append("='").append(value).append("', ");
        line += '}';
    }
    if (children().begin() == children().end()) {
        log.debug("{} = '{}'", line, text());
        return;
    }
    log.debug("{} [", line);
    for (const Node child : children())
        child.debug(indent + 1);
    log.debug("{}]", tabs(indent));
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

/// Appends the element whose name starts at `pos` and advances to the end of its start tag. Returns
/// whether its content follows.
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
    // An element without content also consumes the next character, whatever it is. After the
    // declaration that is the '<' of the root element, so parsing continues at the root's name.
    // See docs/decisions.md, 78.
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
            // See docs/decisions.md, 77.
            pos = find(bytes_.data(), pos + 2, kZero | kGreater);
        step(bytes_, pos);
        element.after = pos;
        element.end = static_cast<std::uint32_t>(elements_.size());
    }
}

Tree parseXML(Buffer buffer)
{
    Tree tree(std::move(buffer.data));
    tree.elements_.reserve(tree.bytes_.size() / kBytesPerElement);
    std::uint32_t pos = buffer.pos;
    // See docs/decisions.md, 79.
    tree.parseNode(pos);
    tree.elements_.clear();
    tree.parseNode(pos);
    return tree;
}

std::string tabs(std::uint32_t count)
{
    return std::string(count, '\t');
}

bool nws(const char& character)
{
    return !is(character, kWhite);
}

} // namespace xml

} // namespace velmora
