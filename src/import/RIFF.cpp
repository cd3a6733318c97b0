#include "import/RIFF.h"

#include "base/FormatError.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <limits>
#include <system_error>

namespace velmora {

namespace RIFF {

namespace {

constexpr int kMaximumDepth = 32;

/// Far more than any bank has. The limit is needed because a chunk can be as small as eight bytes
/// in the file but takes more than fifty in memory.
constexpr std::size_t kMaximumElements = std::size_t{1} << 21;

/// Reads headers through a small buffer, so that neighbouring ones share a system call.
class HeaderReader {
public:
    explicit HeaderReader(const ByteSource& source) : source_(source) {}

    /// Returns the 32-bit word at `at`, or 0 beyond the end.
    std::uint32_t word(std::uint64_t at)
    {
        constexpr std::size_t kWord = 4;
        if (at < start_ || at + kWord > start_ + length_) {
            start_ = at;
            length_ = source_.read(at, window_);
            if (length_ < kWord) {
                length_ = 0;
                return 0;
            }
        }
        std::uint32_t result = 0;
        for (std::size_t i = kWord; i-- > 0;)
            result = result << 8 | std::to_integer<std::uint32_t>(
                                       window_[static_cast<std::size_t>(at - start_) + i]);
        return result;
    }

private:
    const ByteSource& source_;
    std::array<std::byte, 4096> window_;
    std::uint64_t start_ = 0;
    std::size_t length_ = 0;
};

/// Builds the tree below a list.
class TreeReader {
public:
    explicit TreeReader(const ByteSource& source)
        : source_(source), headers_(source),
          end_(std::min<std::uint64_t>(source.size(), std::numeric_limits<std::uint32_t>::max()))
    {
    }

    /// The end of the file, or of what 32-bit offsets can reach.
    std::uint64_t end() const { return end_; }

    std::uint32_t word(std::uint64_t at) { return headers_.word(at); }

    /// Reads the children of a list whose data ends by `end`; returns where they end. That
    /// position, not the size in the list's header, decides where the next chunk starts, because
    /// some writers do not count the pad byte of a list's last chunk in the size of the list.
    std::uint64_t readChildren(List& list, std::uint64_t end, int depth)
    {
        // A chunk cannot start in the last four bytes of a list. Like the offsets, the sum wraps at
        // 32 bits.
        // See docs/decisions.md, 82.
        const std::uint32_t bound = list.size() + list.offset() - 8;
        std::uint64_t at = list.offset();
        while (at < bound && at + kHeader <= end_)
            at = readElement(list, at, end, depth);
        return at;
    }

private:
    static constexpr std::uint64_t kHeader = 8;

    std::uint64_t readElement(List& parent, std::uint64_t at, std::uint64_t end, int depth)
    {
        const std::uint32_t id = word(at);
        const std::uint32_t size = word(at + 4);
        const std::uint64_t data = at + kHeader;
        if (++elements_ > kMaximumElements)
            throw FormatError::atByte(static_cast<std::size_t>(at), "the file has too many chunks");
        if (id == code("LIST"))
            return readList(parent, size, data, end, depth);

        parent.append(std::make_unique<Chunk>(source_, id, size, static_cast<std::uint32_t>(data),
                                              lengthOf(data, data + size, end)));
        return data + size + size % 2;
    }

    std::uint64_t readList(List& parent, std::uint32_t size, std::uint64_t data, std::uint64_t end,
                           int depth)
    {
        if (depth == kMaximumDepth)
            throw FormatError::atByte(static_cast<std::size_t>(data - kHeader),
                                      "lists are nested too deeply");
        if (data + 4 > end_)
            return end_;
        const std::uint64_t offset = data + 4;
        auto list =
            std::make_unique<List>(source_, word(data), size, static_cast<std::uint32_t>(offset),
                                   lengthOf(offset, data + size, end));
        const std::uint64_t stopped = readChildren(*list, std::min(end, data + size), depth + 1);
        parent.append(std::move(list));
        return stopped;
    }

    std::uint32_t lengthOf(std::uint64_t begin, std::uint64_t claimedEnd, std::uint64_t end) const
    {
        const std::uint64_t stop = std::min({claimedEnd, end, end_});
        return static_cast<std::uint32_t>(stop > begin ? stop - begin : 0);
    }

    const ByteSource& source_;
    HeaderReader headers_;
    std::uint64_t end_;
    std::size_t elements_ = 0;
};

OpenedSource openOrExplain(const std::filesystem::path& path)
{
    try {
        return {openFile(path), ""};
    } catch (const std::system_error& error) {
        return {openMemory({}), "cannot be read (" + error.code().message() + ")"};
    } catch (const FormatError& error) {
        return {openMemory({}), error.what()};
    }
}

} // namespace

Chunk::Chunk(const ByteSource& source, std::uint32_t id, std::uint32_t size, std::uint32_t offset,
             std::uint32_t length)
    : source_(source), id_(id), size_(size), offset_(offset), length_(length)
{
}

std::size_t Chunk::read(std::size_t at, std::span<std::byte> destination) const
{
    if (at >= length_)
        return 0;
    const std::size_t count = std::min<std::size_t>(destination.size(), length_ - at);
    return source_.read(std::uint64_t{offset_} + at, destination.first(count));
}

List::List(const ByteSource& source, std::uint32_t type, std::uint32_t size, std::uint32_t offset,
           std::uint32_t length)
    : Chunk(source, code("LIST"), size, offset, length), type_(type)
{
}

template <> const Chunk* List::get<Chunk>(std::uint32_t wanted) const
{
    for (const auto& child : children_) {
        if (child->type() == wanted)
            return child.get();
    }
    return nullptr;
}

template <> const List* List::get<List>(std::uint32_t wanted) const
{
    // See docs/decisions.md, 81.
    return dynamic_cast<const List*>(get<Chunk>(wanted));
}

template <> std::vector<const List*> List::all<List>(std::uint32_t wanted) const
{
    std::vector<const List*> result;
    for (const auto& child : children_) {
        if (child->type() == wanted)
            result.push_back(dynamic_cast<const List*>(child.get()));
    }
    return result;
}

File::File(OpenedSource opened) : List(*opened.source, 0, 0, 0, 0), opened_(std::move(opened))
{
    constexpr std::uint32_t kHeader = 12;
    TreeReader reader(*opened_.source);
    id_ = reader.word(0);
    size_ = reader.word(4);
    type_ = reader.word(8);
    offset_ = kHeader;
    const std::uint64_t end = std::min(reader.end(), std::uint64_t{size_} + 8);
    length_ = static_cast<std::uint32_t>(end > kHeader ? end - kHeader : 0);
    reader.readChildren(*this, end, 0);
}

File::File(const std::filesystem::path& path) : File(openOrExplain(path)) {}

File::File(std::span<const std::byte> bytes) : File(OpenedSource{openMemory(bytes), ""}) {}

void File::check() const
{
    if (!opened_.error.empty())
        throw FormatError(opened_.error);
    if (id_ != code("RIFF"))
        throw FormatError("is not a RIFF file");
}

std::string readText(const Chunk* chunk)
{
    if (chunk == nullptr)
        return "";
    const std::vector<char> bytes = chunk->read<char>();
    return toUtf8({bytes.begin(), std::find(bytes.begin(), bytes.end(), '\0')});
}

} // namespace RIFF

} // namespace velmora
