#pragma once

#include <QStringList>

#include <string>
#include <vector>

class QWidget;

namespace velmora {

/// A kind of file and the extensions of its names, the usual one first, without points.
struct FileKind {
    QString name;
    QStringList extensions;
};

struct SaveQuestion {
    QString title;
    std::vector<FileKind> kinds; ///< At least one.
    QString proposal;            ///< A path; or a name, which may be empty, for the last folder.
    std::string folderKey;       ///< What the last folder is kept for from run to run.
};

/// Asks the user for a file to be written. Its name ends in an extension of one of the kinds: that
/// of the kind chosen last, where the user gave it no such one. A file that is there already is one
/// that may be replaced. Empty when the user does not want to.
QString askWhereToSave(QWidget& parent, const SaveQuestion& question);

} // namespace velmora
