#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <string>
#include <utility>
#include <vector>

namespace velmora {

enum class ZipMethod { Stored, Deflated };

/// Returns a zip archive of files, which are given by name and content.
inline std::string zipArchive(const std::vector<std::pair<std::string, std::string>>& files,
                              ZipMethod method)
{
    std::string result;
    archive* zip = archive_write_new();
    archive_write_set_format_zip(zip);
    if (method == ZipMethod::Stored)
        archive_write_zip_set_compression_store(zip);
    else
        archive_write_zip_set_compression_deflate(zip);
    archive_write_set_bytes_in_last_block(zip, 1);
    const auto append = [](archive* /*zip*/, void* data, const void* bytes, std::size_t count) {
        static_cast<std::string*>(data)->append(static_cast<const char*>(bytes), count);
        return static_cast<la_ssize_t>(count);
    };
    archive_write_open(zip, &result, nullptr, append, nullptr);
    for (const auto& [name, content] : files) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_perm(entry, 0644);
        archive_write_header(zip, entry);
        archive_write_data(zip, content.data(), content.size());
        archive_entry_free(entry);
    }
    archive_write_close(zip);
    archive_write_free(zip);
    return result;
}

} // namespace velmora
