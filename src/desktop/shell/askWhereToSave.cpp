#include "desktop/shell/askWhereToSave.h"

#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include <algorithm>

namespace velmora {

namespace {

QString filterOf(const FileKind& kind)
{
    return QString("%1 (*.%2)").arg(kind.name, kind.extensions.join(" *."));
}

bool isOf(const FileKind& kind, const QString& path)
{
    return kind.extensions.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

bool isOfAny(const std::vector<FileKind>& kinds, const QString& path)
{
    return std::ranges::any_of(kinds, [&](const FileKind& kind) { return isOf(kind, path); });
}

/// Makes `kind` the kind for names without an extension. If the name in the dialog has the
/// extension of another kind, replaces that extension.
void chooseKind(QFileDialog& dialog, const std::vector<FileKind>& kinds, const FileKind& kind)
{
    dialog.setDefaultSuffix(kind.extensions.front());
    const QString path = dialog.selectedFiles().value(0);
    if (isOf(kind, path) || !isOfAny(kinds, path))
        return;
    dialog.selectFile(path.chopped(QFileInfo(path).suffix().size()) + kind.extensions.front());
}

bool mayReplace(QWidget& parent, const std::filesystem::path& path)
{
    std::error_code error;
    return !std::filesystem::exists(path, error) ||
           QMessageBox::question(&parent, QObject::tr("Velmora"),
                                 QObject::tr("%1 already exists. Do you want to replace it?")
                                     .arg(displayName(path))) == QMessageBox::Yes;
}

} // namespace

QString dialogFolder(const std::string& key, const QString& usual)
{
    QStringList folders{preference(key).toString(), usual};
    for (const auto kind : {QStandardPaths::MusicLocation, QStandardPaths::DocumentsLocation})
        folders += QStandardPaths::writableLocation(kind);
    const auto folder = std::ranges::find_if(
        folders, [](const QString& path) { return !path.isEmpty() && QFileInfo(path).isDir(); });
    return folder == folders.end() ? QDir::homePath() : *folder;
}

QString askWhereToSave(QWidget& parent, const SaveQuestion& question)
{
    const std::vector<FileKind>& kinds = question.kinds;
    QFileDialog dialog(&parent, question.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const FileKind& kind : kinds)
        filters += filterOf(kind);
    dialog.setNameFilters(filters);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        if (const qsizetype index = filters.indexOf(filter); index >= 0)
            chooseKind(dialog, kinds, kinds[static_cast<std::size_t>(index)]);
    });

    const QFileInfo proposal(question.proposal);
    dialog.setDirectory(proposal.isAbsolute() ? proposal.absolutePath()
                                              : dialogFolder(question.folderKey));
    dialog.setDefaultSuffix(kinds.front().extensions.front());
    for (const FileKind& kind : kinds) {
        if (!isOf(kind, question.proposal))
            continue;
        dialog.selectNameFilter(filterOf(kind));
        dialog.setDefaultSuffix(kind.extensions.front());
    }
    if (!proposal.fileName().isEmpty())
        dialog.selectFile(proposal.fileName());

    while (dialog.exec() == QDialog::Accepted) {
        QString path = dialog.selectedFiles().front();
        // The dialog has asked whether to replace the file, unless it could not see it: it takes
        // any text after a dot for an extension, and does not find names that are not UTF-8.
        bool wasAsked = QFileInfo::exists(path);
        if (!isOfAny(kinds, path)) {
            path += '.' + dialog.defaultSuffix();
            wasAsked = false;
        }
        if (!wasAsked && !mayReplace(parent, pathOf(path)))
            continue;
        setPreference(question.folderKey, QFileInfo(path).absolutePath());
        return path;
    }
    return {};
}

} // namespace velmora
