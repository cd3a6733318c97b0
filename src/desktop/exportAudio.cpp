#include "desktop/exportAudio.h"

#include "app/AudioExport.h"
#include "sequencer/SequenceDocument.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSettings>
#include <QStatusBar>

namespace {

constexpr const char* kFolderKey = "exportFolder";
constexpr int kParts = 1000;
constexpr int kMessageMilliseconds = 8000;

/// One export, and how far it is.
class ExportProgress : public QProgressDialog {
public:
    ExportProgress(QMainWindow& window, const QString& path)
        : QProgressDialog(tr("Loading the instrument"), tr("Cancel"), 0, kParts, &window),
          window_(window), path_(path)
    {
        setWindowTitle(tr("Export Audio"));
        setWindowModality(Qt::WindowModal);
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
        export_.start(currentSettings(application), document.snapshot(), document.tempo(),
                      path_.toStdString());
    }

private:
    void showProgress(const QString& what, double done)
    {
        if (wasCanceled())
            return;
        setLabelText(tr("%1: %2").arg(QFileInfo(path_).fileName(), what));
        setValue(static_cast<int>(done * kParts));
    }

    void finish(bool isWritten, const QString& error)
    {
        deleteLater();
        hide();
        const QString name = QFileInfo(path_).fileName();
        if (isWritten)
            window_.statusBar()->showMessage(tr("%1 is written").arg(name), kMessageMilliseconds);
        else if (!error.isEmpty())
            QMessageBox::warning(&window_, tr("Velmora"),
                                 tr("%1 was not written. %2").arg(name, error));
    }

    QMainWindow& window_;
    QString path_;
    AudioExport export_;
};

} // namespace

void exportAudio(QMainWindow& window, const SequenceDocument& document, AppDelegate& application)
{
    QSettings settings("velmora", "velmora");
    const auto& path = document.path();
    const QString folder = path.empty() ? settings.value(kFolderKey).toString()
                                        : QString::fromStdString(path.parent_path().string());
    QFileDialog dialog(&window, QObject::tr("Export Audio"), folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({"WAV (*.wav)", "FLAC (*.flac)", "Ogg Vorbis (*.ogg)"});
    dialog.setDefaultSuffix("wav");
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        dialog.setDefaultSuffix(filter.section("*.", 1).chopped(1));
    });
    if (!path.empty())
        dialog.selectFile(QString::fromStdString(path.stem().string()) + ".wav");
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString chosen = dialog.selectedFiles().front();
    settings.setValue(kFolderKey, QFileInfo(chosen).absolutePath());
    (new ExportProgress(window, chosen))->start(document, application); // goes when it is done
}
