#pragma once

#include "import/ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace velmora {

/// RIFF, the container format of WAVE files and sample banks ("Multimedia Programming Interface and
/// Data Specifications 1.0", IBM and Microsoft, 1991). Opening a file reads the headers of all
/// chunks; their data is read on request.
namespace RIFF {

/// Returns a four-character code as an integer with the same bytes in memory, as in code("LIST").
constexpr std::uint32_t code(const char (&text)[5])
{
    std::uint32_t result = 0;
    for (int i = 3; i >= 0; --i)
        result = result << 8 | static_cast<std::uint8_t>(text[i]);
    return result;
}

/// A node of the tree. Sizes in the file are not trusted: data ends at the latest where the
/// enclosing list and the file end.
class Chunk {
public:
    Chunk(const ByteSource& source, std::uint32_t id, std::uint32_t size, std::uint32_t offset,
          std::uint32_t length);
    Chunk(const Chunk&) = delete;
    Chunk& operator=(const Chunk&) = delete;
    virtual ~Chunk() = default;

    /// The code in the header; "LIST" for a list.
    std::uint32_t id() const { return id_; }

    /// The code by which a list finds its children: the id of a chunk, or the list type of a list.
    virtual std::uint32_t type() const { return id_; }

    /// The size in the header, without the pad byte.
    std::uint32_t size() const { return size_; }

    /// The position of the data in the file; for a list, after its type.
    std::uint32_t offset() const { return offset_; }

    /// The number of available data bytes, at most `size()`. For a list, the list type is not
    /// counted.
    std::uint32_t length() const { return length_; }

    /// Reads the data as an array of records, as they are stored in the file (little-endian,
    /// packed). Bytes after the last whole record are ignored.
    template <class Record> std::vector<Record> read() const
    {
        static_assert(std::is_trivially_copyable_v<Record>);
        std::vector<Record> records(length_ / sizeof(Record));
        const std::size_t bytes = read(0, std::as_writable_bytes(std::span(records)));
        records.resize(bytes / sizeof(Record));
        return records;
    }

    /// Copies data from byte `at` into `destination` and returns how many bytes were copied. Copies
    /// fewer than fit if the data ends.
    std::size_t read(std::size_t at, std::span<std::byte> destination) const;

protected:
    const ByteSource& source_;
    std::uint32_t id_, size_, offset_, length_;
};

/// A chunk that contains other chunks.
class List : public Chunk {
public:
    List(const ByteSource& source, std::uint32_t type, std::uint32_t size, std::uint32_t offset,
         std::uint32_t length);

    std::uint32_t type() const override { return type_; }

    /// The children in file order.
    const std::vector<std::unique_ptr<Chunk>>& children() const { return children_; }

    void append(std::unique_ptr<Chunk> child) { children_.push_back(std::move(child)); }

    /// Returns the first child of a type, or null if there is none. get<List> also returns null if
    /// that first child is a plain chunk, even if a list follows.
    template <class T> const T* get(std::uint32_t wanted) const;

    /// Returns all children of a type in file order, with null for each plain chunk.
    template <class T> std::vector<const T*> all(std::uint32_t wanted) const;

protected:
    std::uint32_t type_;

private:
    std::vector<std::unique_ptr<Chunk>> children_;
};

/// A source, or an empty one and the reason why the file could not be opened.
struct OpenedSource {
    std::unique_ptr<ByteSource> source; ///< Never null.
    std::string error;                  ///< Empty on success.
};

/// The root of the tree, which owns all other nodes. Its id and type may be anything; a file that
/// cannot be opened has no children. Call `check` before using it.
class File : public List {
public:
    /// Throws FormatError if lists are nested more than 32 levels deep or the file has more than
    /// two million chunks.
    explicit File(const std::filesystem::path& path);

    /// Reads a file in memory, which must outlive this object.
    explicit File(std::span<const std::byte> bytes);

    /// Throws FormatError if the file could not be opened or is not a RIFF file.
    void check() const;

private:
    explicit File(OpenedSource opened);

    OpenedSource opened_;
};

/// Returns the text of a chunk up to the first NUL byte, as UTF-8; empty if `chunk` is null.
std::string readText(const Chunk* chunk);

template <> const Chunk* List::get<Chunk>(std::uint32_t wanted) const;
template <> const List* List::get<List>(std::uint32_t wanted) const;
template <> std::vector<const List*> List::all<List>(std::uint32_t wanted) const;

} // namespace RIFF

} // namespace velmora
