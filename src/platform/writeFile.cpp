#include "platform/writeFile.h"

#include <QSaveFile>

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
    const std::string reason = reasonNotToReplace(path);
    if (!reason.empty())
        return reason;
    QSaveFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString().toStdString();
    // QSaveFile's own `write` loses the reason for an incomplete write, for example on a full disk,
    // and may then commit the incomplete file.
    while (!bytes.empty()) {
        const ssize_t written = write(file.handle(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return std::generic_category().message(errno);
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    if (fsync(file.handle()) != 0)
        return std::generic_category().message(errno);
    return file.commit() ? "" : file.errorString().toStdString();
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
        throw std::runtime_error(whole.filename().string() + " cannot be written to " +
                                 whole.parent_path().string() + ": " + reason);
}

} // namespace velmora
