#pragma once

#include "import/ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace velmora {

/// RIFF, the container of nested chunks in which WAVE files and sample banks are kept ("Multimedia
/// Programming Interface and Data Specifications 1.0", IBM and Microsoft, 1991). Opening a file
/// reads the headers of its whole tree; the data stays in the file until it is asked for.
namespace RIFF {

/// A four-character code as an integer of the same bytes: code("LIST").
constexpr std::uint32_t code(const char (&text)[5])
{
    std::uint32_t result = 0;
    for (int i = 3; i >= 0; --i)
        result = result << 8 | static_cast<std::uint8_t>(text[i]);
    return result;
}

/// One element of the tree. The sizes that a file claims are never trusted: what can be read ends
/// where the enclosing list and the file end.
class Chunk {
public:
    Chunk(const ByteSource& source, std::uint32_t id, std::uint32_t size, std::uint32_t offset,
          std::uint32_t length);
    Chunk(const Chunk&) = delete;
    Chunk& operator=(const Chunk&) = delete;
    virtual ~Chunk() = default;

    /// What the lookups compare: the id of a chunk, the list type of a list.
    virtual std::uint32_t type() const { return id; }

    /// Bytes of data that are there, at most `size`; of a list without its type.
    std::uint32_t length() const { return length_; }

    /// The data as the records that stand in the file (little-endian, packed). Bytes beyond the
    /// last whole record are ignored.
    template <class Record> std::vector<Record> read() const
    {
        static_assert(std::is_trivially_copyable_v<Record>);
        std::vector<Record> records(length_ / sizeof(Record));
        const std::size_t bytes = read(0, std::as_writable_bytes(std::span(records)));
        records.resize(bytes / sizeof(Record));
        return records;
    }

    /// Copies the data from byte `at` on and returns the count of bytes: fewer than `destination`
    /// holds where the data ends before.
    std::size_t read(std::size_t at, std::span<std::byte> destination) const;

    std::uint32_t id;     ///< "LIST" of a list
    std::uint32_t size;   ///< as the header has it, without the pad byte
    std::uint32_t offset; ///< of the data in the file; of a list behind its type

protected:
    const ByteSource& source_;
    std::uint32_t length_;
};

/// A chunk that holds chunks.
class List : public Chunk {
public:
    using Chunk::Chunk;

    std::uint32_t type() const override { return listType; }

    /// The first child of that type: any child as a Chunk, but as a List null where that first
    /// child is a plain chunk. Null where there is none.
    template <class T> const T* get(std::uint32_t wanted) const;

    /// Every child of that type in the order of the file, null for plain chunks.
    template <class T> std::vector<const T*> all(std::uint32_t wanted) const;

    std::uint32_t listType = 0;
    std::vector<std::unique_ptr<Chunk>> children; ///< in the order of the file
};

/// A source, and why it is empty where it could not be opened.
struct OpenedSource {
    std::unique_ptr<ByteSource> source; ///< never null
    std::string error;
};

/// The root of the tree, whatever its id and type; owns all of it. A file that cannot be opened has
/// no children.
class File : public List {
public:
    /// Throws FormatError where lists are nested deeper than 32 levels, and where there are more
    /// than two million elements.
    explicit File(const std::filesystem::path& path);

    /// A file in memory, which must outlive this one.
    explicit File(std::span<const std::byte> bytes);

    /// Throws FormatError where the file could not be opened or does not begin as RIFF.
    void check() const;

private:
    explicit File(OpenedSource opened);

    OpenedSource opened_;
};

/// The text in a chunk up to the first NUL byte, as UTF-8. Empty where the pointer is null.
std::string readText(const Chunk* chunk);

template <> const Chunk* List::get<Chunk>(std::uint32_t wanted) const;
template <> const List* List::get<List>(std::uint32_t wanted) const;
template <> std::vector<const List*> List::all<List>(std::uint32_t wanted) const;

} // namespace RIFF

} // namespace velmora
