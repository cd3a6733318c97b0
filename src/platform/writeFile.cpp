#include "platform/writeFile.h"

#include <QSaveFile>

#include <stdexcept>

void writeFile(const std::filesystem::path& path, std::string_view bytes)
{
    QSaveFile file(QString::fromStdString(path.string()));
    const auto size = static_cast<qint64>(bytes.size());
    if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.commit())
        return;

    const std::filesystem::path folder = std::filesystem::absolute(path).parent_path();
    std::error_code error;
    const std::string reason = std::filesystem::is_directory(folder, error)
                                   ? file.errorString().toStdString()
                                   : "there is no such folder";
    throw std::runtime_error(path.filename().string() + " cannot be written in " + folder.string() +
                             ": " + reason);
}
