#include "desktop/shell/exportAudio.h"

#include "app/AudioExport.h"
#include "desktop/shell/askWhereToSave.h"
#include "platform/pathNames.h"
#include "sequencer/SequenceDocument.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace velmora {

namespace {

constexpr int kProgressSteps = 1000;

/// An export with its progress dialog; deletes itself when it is done.
class ExportProgress : public QProgressDialog {
    Q_DECLARE_TR_FUNCTIONS(velmora::ExportProgress)

public:
    ExportProgress(QWidget& page, const QString& path, std::function<void(const QString&)> tell)
        : QProgressDialog(tr("Loading the instrument"), tr("Cancel"), 0, kProgressSteps, &page),
          page_(page), path_(path), tell_(std::move(tell))
    {
        setWindowTitle(tr("Export Audio"));
        setAutoClose(false);
        setAutoReset(false);
        setMinimumDuration(0);
        setMinimumWidth(360);
        connect(this, &QProgressDialog::canceled, &export_, &AudioExport::cancel);
        connect(&export_, &AudioExport::progressed, this, &ExportProgress::showProgress);
        connect(&export_, &AudioExport::finished, this, &ExportProgress::finish);
    }

    void start(const SequenceDocument& document, AppDelegate& application)
    {
        export_.start(currentSettings(application), document.snapshot(),
                      document.transport().speed(), pathOf(path_));
    }

private:
    void showProgress(const QString& what, double done)
    {
        if (wasCanceled())
            return;
        setLabelText(tr("%1: %2").arg(displayName(pathOf(path_)), what));
        setValue(static_cast<int>(done * kProgressSteps));
    }

    void finish(bool isWritten, const QString& error)
    {
        deleteLater();
        hide();
        const QString name = displayName(pathOf(path_));
        if (isWritten)
            tell_(tr("Exported %1").arg(name));
        else if (!error.isEmpty())
            QMessageBox::warning(&page_, tr("Velmora"),
                                 tr("%1 was not exported. %2").arg(name, error));
    }

    QWidget& page_;
    QString path_;
    std::function<void(const QString&)> tell_;
    AudioExport export_;
};

} // namespace

void exportAudio(QWidget& page, const SequenceDocument& document, const QString& name,
                 AppDelegate& application, const std::function<void(const QString&)>& tell)
{
    const auto beside = std::filesystem::path(document.path()).replace_extension("wav");
    QString proposal = name + ".wav";
    if (!document.path().empty())
        proposal = QFileInfo(textOf(beside.parent_path())).isWritable() ? textOf(beside)
                                                                        : displayName(beside);
    const QString path = askWhereToSave(page, {.title = ExportProgress::tr("Export Audio"),
                                               .kinds = {{"WAV", {"wav"}},
                                                         {"FLAC", {"flac"}},
                                                         {"Ogg Vorbis", {"ogg"}},
                                                         {"Opus", {"opus"}},
                                                         {"MP3", {"mp3"}}},
                                               .proposal = proposal,
                                               .folderKey = "exportFolder"});
    if (!path.isEmpty())
        (new ExportProgress(page, path, tell))->start(document, application);
}

bool isExportingAudio(const QWidget& page)
{
    const auto exports = page.findChildren<QProgressDialog*>();
    return std::ranges::any_of(exports, &QWidget::isVisible);
}

} // namespace velmora
