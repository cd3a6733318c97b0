#include "platform/pathNames.h"

#include "base/Text.h"

#include <QFile>

#include <algorithm>
#include <string>
#include <system_error>

namespace velmora {

namespace {

constexpr char16_t kFirstByte = 0xDC80, kLastByte = 0xDCFF;

QString textOfName(const std::string& name)
{
    if (toUtf8(name) == name)
        return QString::fromStdString(name);
    QString text;
    for (const char byte : name) {
        const auto code = static_cast<unsigned char>(byte);
        text += QChar(code < 0x80 ? char16_t{code} : static_cast<char16_t>(0xDC00 + code));
    }
    return text;
}

std::string bytesOf(const QString& text)
{
    std::string bytes;
    QString plain; // the characters since the last byte
    for (const QChar character : text) {
        const bool isByte = character >= QChar(kFirstByte) && character <= QChar(kLastByte) &&
                            !(!plain.isEmpty() && plain.back().isHighSurrogate());
        if (!isByte) {
            plain += character;
            continue;
        }
        bytes += plain.toStdString() + static_cast<char>(character.unicode() & 0xFFU);
        plain.clear();
    }
    return bytes + plain.toStdString();
}

/// Returns the file of a folder whose name looks like `name` to Qt.
std::filesystem::path findAlike(const std::filesystem::path& folder, const QString& name)
{
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::filesystem::path found = entry->path().filename();
        if (QFile::decodeName(found.c_str()) == name)
            return found;
    }
    return name.toStdString();
}

} // namespace

QString textOf(const std::filesystem::path& path)
{
    QString text;
    const std::string& bytes = path.native();
    for (std::size_t start = 0; start <= bytes.size();) {
        const std::size_t end = std::min(bytes.find('/', start), bytes.size());
        text += textOfName(bytes.substr(start, end - start));
        if (end < bytes.size())
            text += '/';
        start = end + 1;
    }
    return text;
}

QString displayName(const std::filesystem::path& path)
{
    return QString::fromStdString(toUtf8(path.filename().string()));
}

std::filesystem::path pathOf(const QString& text)
{
    std::filesystem::path path = bytesOf(text);
    std::error_code error;
    if (!text.contains(QChar::ReplacementCharacter) || std::filesystem::exists(path, error))
        return path;
    std::filesystem::path found;
    for (const std::filesystem::path& name : path) {
        const QString looks = QString::fromStdString(name.string());
        const bool isReplaced = looks.contains(QChar::ReplacementCharacter) &&
                                !std::filesystem::exists(found / name, error);
        found /= isReplaced ? findAlike(found, looks) : name;
    }
    return found;
}

} // namespace velmora
