#include "desktop/shell/FileDrop.h"

#include "platform/pathNames.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace velmora {

namespace {

/// Returns the path of a file, whose name may not be UTF-8.
std::filesystem::path localPath(const QUrl& url)
{
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8()).toStdString();
}

QStringList localFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths += textOf(localPath(url));
    return paths;
}

} // namespace

void FileDrop::watch(QWidget& window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event); // also the base class of QDragEnterEvent
    const QStringList paths = localFiles(*drop.mimeData());
    if (paths.isEmpty())
        return false;
    drop.acceptProposedAction();
    if (event->type() == QEvent::Drop)
        emit dropped(paths);
    return true;
}

} // namespace velmora
