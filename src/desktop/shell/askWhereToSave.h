#pragma once

#include <QStringList>

#include <string>
#include <vector>

class QWidget;

namespace velmora {

/// A type of file and its extensions without dots, the most common one first.
struct FileKind {
    QString name;
    QStringList extensions;
};

/// Returns the folder in which a dialog opens: the one that was last chosen and stored under `key`,
/// or else `usual`, the user's folder for music, for documents, or the home folder.
QString dialogFolder(const std::string& key, const QString& usual = {});

struct SaveQuestion {
    QString title;
    std::vector<FileKind> kinds; ///< At least one.
    QString proposal;            ///< An absolute path, or a name in the last folder; may be empty.
    std::string folderKey;       ///< The preference that stores the last folder.
};

/// Asks the user where to save a file. If the name does not end in an extension of one of the
/// kinds, the extension of the chosen kind is added. The user has agreed to replace the file if it
/// already exists. Returns an empty path if the user cancels.
QString askWhereToSave(QWidget& parent, const SaveQuestion& question);

} // namespace velmora
