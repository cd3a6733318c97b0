#include "import/ArchiveTree.h"

#include "base/FormatError.h"
#include "base/Text.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace velmora {

namespace {

/// Files are unpacked in pieces of this size, so that a false size reserves no memory.
constexpr std::size_t kPiece = 1 << 20;

/// How libarchive goes through a zip archive.
enum class Access : std::uint8_t {
    Directory,  ///< By the directory at its end.
    FromHeader, ///< From the header of a file onwards.
};

/// An open archive. Throws FormatError if it cannot be read.
class OpenArchive {
public:
    OpenArchive(const ByteSource& source, Access access, std::uint64_t position)
        : source_(source), position_(position), archive_(archive_read_new(), archive_read_free)
    {
        if (archive_ == nullptr)
            throw std::bad_alloc();
        if (access == Access::Directory) {
            archive_read_support_format_zip_seekable(archive_.get());
            archive_read_set_seek_callback(archive_.get(), &OpenArchive::seek);
        } else {
            archive_read_support_format_zip_streamable(archive_.get());
        }
        archive_read_set_read_callback(archive_.get(), &OpenArchive::read);
        archive_read_set_skip_callback(archive_.get(), &OpenArchive::skip);
        archive_read_set_callback_data(archive_.get(), this);
        if (archive_read_open1(archive_.get()) != ARCHIVE_OK)
            throw FormatError("is not a zip archive, or is damaged");
    }

    /// Moves to the next file. Returns null behind the last one.
    archive_entry* next()
    {
        archive_entry* entry = nullptr;
        const int status = archive_read_next_header(archive_.get(), &entry);
        if (status == ARCHIVE_EOF)
            return nullptr;
        // A warning means that a name is not in the character set of the locale.
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN)
            throw FormatError("is a damaged archive");
        return entry;
    }

    /// Where the packed bytes of the file begin.
    std::uint64_t dataPosition() const
    {
        return static_cast<std::uint64_t>(
            std::max<la_int64_t>(archive_filter_bytes(archive_.get(), 0), 0));
    }

    /// Unpacks the next bytes of the file. Returns their number, 0 at its end.
    std::size_t unpack(std::span<std::byte> bytes)
    {
        const la_ssize_t count = archive_read_data(archive_.get(), bytes.data(), bytes.size());
        if (count < 0)
            throw FormatError("is damaged in the archive");
        return static_cast<std::size_t>(count);
    }

private:
    static OpenArchive& self(void* data) { return *static_cast<OpenArchive*>(data); }

    static la_ssize_t read(archive* /*archive*/, void* data, const void** buffer)
    {
        OpenArchive& open = self(data);
        const std::size_t count = open.source_.read(open.position_, open.buffer_);
        open.position_ += count;
        *buffer = open.buffer_.data();
        return static_cast<la_ssize_t>(count);
    }

    static la_int64_t skip(archive* /*archive*/, void* data, la_int64_t count)
    {
        OpenArchive& open = self(data);
        const std::uint64_t rest =
            open.source_.size() - std::min(open.source_.size(), open.position_);
        const std::uint64_t skipped =
            std::min(rest, static_cast<std::uint64_t>(std::max<la_int64_t>(count, 0)));
        open.position_ += skipped;
        return static_cast<la_int64_t>(skipped);
    }

    static la_int64_t seek(archive* /*archive*/, void* data, la_int64_t offset, int whence)
    {
        OpenArchive& open = self(data);
        const auto size = static_cast<la_int64_t>(open.source_.size());
        const la_int64_t base = whence == SEEK_SET   ? 0
                                : whence == SEEK_END ? size
                                                     : static_cast<la_int64_t>(open.position_);
        if (offset < -base || offset > size - base)
            return ARCHIVE_FATAL;
        open.position_ = static_cast<std::uint64_t>(base + offset);
        return base + offset;
    }

    const ByteSource& source_;
    std::uint64_t position_;
    std::array<std::byte, 1 << 14> buffer_{};
    std::unique_ptr<archive, int (*)(archive*)> archive_;
};

/// Returns where the header begins that ends at a position. Throws FormatError if there is none.
/// See docs/decisions.md, 153.
std::uint64_t headerBefore(const ByteSource& source, std::uint64_t end)
{
    constexpr std::size_t kHeader = 30; // and then the name and more, each with a 16-bit length
    constexpr std::size_t kNameLength = 26;
    constexpr std::string_view kSignature = "PK\3\4";
    for (const std::uint64_t most : {std::uint64_t{1} << 10, std::uint64_t{1} << 18}) {
        std::string bytes(static_cast<std::size_t>(std::min(most, end)), '\0');
        source.read(end - bytes.size(), std::as_writable_bytes(std::span(bytes)));
        const auto number = [&](std::size_t at) {
            return std::size_t{static_cast<std::uint8_t>(bytes[at])} |
                   std::size_t{static_cast<std::uint8_t>(bytes[at + 1])} << 8;
        };
        for (std::size_t at = bytes.rfind(kSignature); at != std::string::npos;
             at = at == 0 ? std::string::npos : bytes.rfind(kSignature, at - 1)) {
            if (at + kHeader <= bytes.size() &&
                at + kHeader + number(at + kNameLength) + number(at + kNameLength + 2) ==
                    bytes.size())
                return end - bytes.size() + at;
        }
    }
    throw FormatError("is a damaged archive");
}

std::string nameOf(archive_entry* entry)
{
    const char* name = archive_entry_pathname_utf8(entry);
    if (name == nullptr)
        name = archive_entry_pathname(entry);
    return name == nullptr ? "" : toUtf8(name);
}

/// Returns a name with single slashes between its components and without "." among them. Empty if
/// it leads out of the archive.
std::string normalized(std::string_view name)
{
    std::string result;
    while (!name.empty()) {
        const std::size_t length = std::min(name.find_first_of("/\\"), name.size());
        const std::string_view component = name.substr(0, length);
        if (component == "..")
            return {};
        if (!component.empty() && component != ".")
            (result += result.empty() ? "" : "/") += component;
        name.remove_prefix(std::min(length + 1, name.size()));
    }
    return result;
}

bool isAbsolute(std::string_view name)
{
    return name.starts_with('/') || name.starts_with('\\') || (name.size() > 1 && name[1] == ':');
}

} // namespace

ArchiveTree::ArchiveTree(std::unique_ptr<ByteSource> source, std::string name, MemoryGuard& memory)
    : source_(std::move(source)), name_(std::move(name)), memory_(memory)
{
    OpenArchive archive(*source_, Access::Directory, 0);
    while (archive_entry* entry = archive.next()) {
        if (archive_entry_filetype(entry) != AE_IFREG)
            continue;
        const std::string member = nameOf(entry);
        if (archive_entry_is_encrypted(entry) != 0)
            throw FormatError("is encrypted; only archives without a password can be opened");
        add(member,
            {headerBefore(*source_, archive.dataPosition()),
             static_cast<std::uint64_t>(std::max<la_int64_t>(archive_entry_size(entry), 0))});
    }
}

void ArchiveTree::add(const std::string& name, Member member)
{
    const std::string spelling = normalized(name);
    if (spelling.empty() || isAbsolute(name))
        throw FormatError("holds a file whose name leads out of the archive: \"" + name + '"');
    if (members_.try_emplace(lowerCase(spelling), member).second)
        names_.push_back(spelling);
}

const ArchiveTree::Member* ArchiveTree::find(const std::string& name) const
{
    const auto found = members_.find(lowerCase(normalized(name)));
    return found == members_.end() ? nullptr : &found->second;
}

bool ArchiveTree::contains(const std::string& name) const
{
    return find(name) != nullptr;
}

std::uint64_t ArchiveTree::size(const std::string& name) const
{
    const Member* member = find(name);
    return member == nullptr ? 0 : member->size;
}

std::string ArchiveTree::displayName(const std::string& name) const
{
    return name_ + '/' + normalized(name);
}

std::vector<std::byte> ArchiveTree::read(const std::string& name) const
{
    const Member* member = find(name);
    if (member == nullptr)
        throw FormatError("is not in the archive");
    OpenArchive archive(*source_, Access::FromHeader, member->position);
    archive_entry* entry = archive.next();
    while (entry != nullptr && find(nameOf(entry)) != member)
        entry = archive.next();
    if (entry == nullptr)
        throw FormatError("is damaged in the archive");

    memory_.require(member->size);
    std::vector<std::byte> bytes;
    std::size_t count = 0;
    do {
        bytes.resize(bytes.size() + kPiece);
        count = archive.unpack(std::span(bytes).last(kPiece));
        bytes.resize(bytes.size() - kPiece + count);
        if (bytes.size() > member->size)
            throw FormatError("is larger than the archive says");
    } while (count == kPiece);
    if (bytes.size() < member->size)
        throw FormatError("is cut short in the archive");
    return bytes;
}

} // namespace velmora
