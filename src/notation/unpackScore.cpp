#include "notation/unpackScore.h"

#include "base/FormatError.h"
#include "base/parseXml.h"

#include <archive.h>
#include <archive_entry.h>

#include <array>
#include <memory>
#include <new>
#include <optional>

namespace velmora {

namespace {

constexpr const char* kContainer = "META-INF/container.xml";

/// A score that is larger, in bytes, is damaged or made to fill the memory.
constexpr std::size_t kLargestScore = std::size_t(256) << 20;

constexpr std::size_t kPackedPiece = 1 << 16;

/// Returns the file of this name in a zip archive; nothing if it is not there.
std::optional<std::string> fileIn(std::string_view bytes, const std::string& name)
{
    const std::unique_ptr<archive, int (*)(archive*)> zip(archive_read_new(), archive_read_free);
    if (zip == nullptr)
        throw std::bad_alloc();
    archive_read_support_format_zip(zip.get());
    if (archive_read_open_memory(zip.get(), bytes.data(), bytes.size()) != ARCHIVE_OK)
        throw FormatError("is not a zip archive, or is damaged");
    archive_entry* entry = nullptr;
    for (;;) {
        const int status = archive_read_next_header(zip.get(), &entry);
        if (status == ARCHIVE_EOF)
            return std::nullopt;
        // A warning means that a name is not in the character set of the locale.
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN)
            throw FormatError("is a damaged archive");
        const char* found = archive_entry_pathname_utf8(entry);
        if (found != nullptr && found == name)
            break;
    }
    std::string text;
    std::array<char, kPackedPiece> piece{};
    for (;;) {
        const la_ssize_t count = archive_read_data(zip.get(), piece.data(), piece.size());
        if (count < 0)
            throw FormatError(name + " is damaged in the archive");
        if (count == 0)
            return text;
        text.append(piece.data(), static_cast<std::size_t>(count));
        if (text.size() > kLargestScore)
            throw FormatError("the score is too large");
    }
}

} // namespace

bool isPackedScore(std::string_view bytes)
{
    return bytes.starts_with("PK");
}

std::string unpackScore(std::string_view bytes)
{
    const auto container = fileIn(bytes, kContainer);
    if (!container)
        throw FormatError("is an archive, but not of a score");
    const pugi::xml_document document = parseXml(*container);
    const std::string name = document.child("container")
                                 .child("rootfiles")
                                 .child("rootfile")
                                 .attribute("full-path")
                                 .value();
    auto score = fileIn(bytes, name);
    if (!score)
        throw FormatError("the score \"" + name + "\" is missing from the archive");
    return *std::move(score);
}

} // namespace velmora
