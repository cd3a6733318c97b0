#include "desktop/shell/PracticeResults.h"

#include "desktop/practice/PracticeWindow.h"
#include "desktop/shell/askWhereToSave.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "platform/writeFile.h"
#include "sequencer/SequenceDocument.h"

#include <QBuffer>
#include <QImage>
#include <QMessageBox>

#include <stdexcept>
#include <utility>

namespace velmora {

PracticeResults::PracticeResults(QWidget& window) : QObject(&window), parent_(window) {}

void PracticeResults::add(const SequenceDocument& document)
{
    const PracticeEntry entry{QDateTime::currentDateTimeUtc(),
                              summarize(document.practiceSession().result(), document.time())};
    const std::filesystem::path& path = document.path();
    std::vector<PracticeEntry> entries{entry};
    QString error;
    if (!path.empty()) {
        PracticeHistory history(practiceFolder(), path);
        try {
            history.add(entry);
        } catch (const std::runtime_error& reason) {
            error = translated(reason.what());
        }
        entries = history.entries();
    }
    const QString piece = path.empty() ? tr("Untitled") : displayName(path);
    // A message must not wait for an answer in a tick of the transport.
    QMetaObject::invokeMethod(
        this, [this, piece, entries, error] { show(piece, entries, error); }, Qt::QueuedConnection);
}

void PracticeResults::show(const QString& piece, std::vector<PracticeEntry> entries,
                           const QString& error)
{
    if (window_ == nullptr) {
        window_ = new PracticeWindow(&parent_);
        connect(window_, &PracticeWindow::saveRequested, this, &PracticeResults::savePicture);
    }
    window_->show(piece, std::move(entries));
    if (!error.isEmpty())
        QMessageBox::warning(window_, tr("Velmora"),
                             tr("The result of the practice was not kept: %1").arg(error));
}

void PracticeResults::savePicture(const QImage& picture)
{
    const QString path = askWhereToSave(*window_, {.title = tr("Save Picture"),
                                                   .kinds = {{"PNG", {"png"}}},
                                                   .proposal = tr("Practice") + ".png",
                                                   .folderKey = "exportFolder"});
    if (path.isEmpty())
        return;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes, "PNG");
    try {
        writeFile(pathOf(path), bytes.data().toStdString());
    } catch (const std::runtime_error& error) {
        QMessageBox::warning(window_, tr("Velmora"), translated(error.what()));
    }
}

} // namespace velmora
