#include "platform/writeFile.h"

#include "base/Text.h"
#include "platform/ReplacingFile.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace velmora {

namespace {

/// Writes the file. Returns the reason for a failure, or an empty text on success.
std::string tryToWrite(const std::filesystem::path& path, std::string_view bytes)
{
    std::string reason = reasonNotToReplace(path);
    if (!reason.empty())
        return reason;
    try {
        ReplacingFile file(path);
        while (!bytes.empty()) {
            const ssize_t written = write(file.handle(), bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR)
                return std::generic_category().message(errno);
            bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
        }
        file.commit();
    } catch (const std::system_error& error) {
        return error.code().message();
    }
    return "";
}

} // namespace

std::string reasonNotToReplace(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_directory(std::filesystem::absolute(path).parent_path(), error))
        return "the folder does not exist";
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::none)
        return error.message(); // of a loop of symbolic links, for example
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        return "not a regular file";
    return "";
}

void writeFile(const std::filesystem::path& path, std::string_view bytes)
{
    const std::filesystem::path whole = std::filesystem::absolute(path);
    const std::string reason = tryToWrite(whole, bytes);
    if (!reason.empty())
        throw std::runtime_error(toUtf8(whole.filename().string()) + " cannot be written to " +
                                 toUtf8(whole.parent_path().string()) + ": " + reason);
}

} // namespace velmora
