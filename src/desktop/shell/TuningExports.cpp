#include "desktop/shell/TuningExports.h"

#include "app/AppDelegate.h"
#include "app/scorePiece.h"
#include "app/tunedMidi.h"
#include "desktop/roll/writeRoll.h"
#include "desktop/shell/SendTuningDialog.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/SequencePages.h"
#include "desktop/shell/ShellActions.h"
#include "desktop/shell/askWhereToSave.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "platform/writeFile.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleFile.h"
#include "tuning/soundingScale.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include <cmath>
#include <filesystem>

namespace velmora {

namespace {

constexpr int kBarsInALine = 4, kMostBars = 32; // of a roll on paper

/// Turns the name of a tuning into one for a file.
QString fileName(const std::string& tuning)
{
    QString name = QString::fromStdString(tuning).replace('/', '-');
    return name.endsWith(".scl", Qt::CaseInsensitive) ? name.chopped(4) : name;
}

/// Returns the name of a piece without the extension of its file.
QString titleOf(SequencePage& page)
{
    const std::filesystem::path& path = page.document().path();
    return path.empty() ? page.saver().displayName() : displayName(path.stem());
}

/// Returns the path of a file in the folder of the piece, or else, if nothing can be written there,
/// the name of the file.
QString besidePiece(SequencePage& page, const QString& name)
{
    const std::filesystem::path folder = page.document().path().parent_path();
    return !folder.empty() && QFileInfo(textOf(folder)).isWritable()
               ? QDir(textOf(folder)).filePath(name)
               : name;
}

} // namespace

TuningExports::TuningExports(AppDelegate& application, ShellActions& actions, SequencePages& pages,
                             QWidget& window)
    : application_(application), pages_(pages), window_(window),
      sender_(application.player(), application.tunings())
{
    connect(actions.exportMidi, &QAction::triggered, this, &TuningExports::exportMidi);
    connect(actions.exportScore, &QAction::triggered, this, &TuningExports::exportScore);
    connect(actions.exportRoll, &QAction::triggered, this, &TuningExports::exportRoll);
    connect(actions.exportScale, &QAction::triggered, this, &TuningExports::exportScale);
    connect(actions.sendTuning, &QAction::triggered, this, &TuningExports::showSendDialog);
    connect(&pages, &SequencePages::currentChanged, this, [this, &actions] {
        for (QAction* action : {actions.exportMidi, actions.exportScore, actions.exportRoll})
            action->setEnabled(pages_.current() != nullptr);
    });
    connect(&sender_, &TuningSender::failed, this,
            [this](const std::string& error) { emit message(translated(error)); });
}

void TuningExports::save(const QString& path,
                         const std::function<void(const std::filesystem::path&)>& write)
{
    const QString name = displayName(pathOf(path));
    try {
        write(pathOf(path));
        emit message(tr("Exported %1").arg(name));
    } catch (const std::exception& error) {
        QMessageBox::warning(&window_, tr("Velmora"),
                             tr("%1 was not exported. %2").arg(name, translated(error.what())));
    }
}

void TuningExports::exportMidi()
{
    SequencePage* page = pages_.current();
    const QString path = askWhereToSave(
        window_, {.title = tr("Export MIDI in This Tuning"),
                  .kinds = {{tr("MIDI File"), {"mid"}}},
                  .proposal = besidePiece(
                      *page, tr("%1 in %2", "a piece in a tuning")
                                     .arg(titleOf(*page), fileName(application_.tunings().name())) +
                                 ".mid"),
                  .folderKey = "exportFolder"});
    if (path.isEmpty())
        return;
    save(path, [&](const std::filesystem::path& file) {
        RenderOptions options;
        options.speed = page->document().transport().speed();
        const TunedMidi midi = writeTunedMidi(
            application_,
            [&](SequenceDocument& copy) { copy.recover(page->document().snapshot()); }, options);
        writeFile(file, midi.bytes);
        if (midi.notes.wrong > 0)
            QMessageBox::information(
                &window_, tr("Velmora"),
                tr("A MIDI file has only 15 channels for notes of different pitch, so %n note(s) "
                   "are up to %1 cents out of tune.",
                   nullptr, static_cast<int>(midi.notes.wrong))
                    .arg(std::ceil(midi.notes.worstCents)));
    });
}

void TuningExports::exportScore()
{
    SequencePage* page = pages_.current();
    const QString title = titleOf(*page);
    const QString path =
        askWhereToSave(window_, {.title = tr("Export Score"),
                                 .kinds = {{"MusicXML", {"musicxml"}}, {"LilyPond", {"ly"}}},
                                 .proposal = besidePiece(*page, title + ".musicxml"),
                                 .folderKey = "exportFolder"});
    if (path.isEmpty())
        return;
    save(path, [&](const std::filesystem::path& file) {
        writeScore(file,
                   pieceOf(page->document(), title.toStdString(), *application_.tunings().fresh()));
    });
}

void TuningExports::exportRoll()
{
    SequencePage* page = pages_.current();
    const QString title = titleOf(*page);
    bool isChosen = false;
    const int bars = QInputDialog::getInt(&window_, tr("Export Roll"), tr("&Bars in a line:"),
                                          kBarsInALine, 1, kMostBars, 1, &isChosen);
    if (!isChosen)
        return;
    const QString path = askWhereToSave(window_, {.title = tr("Export Roll"),
                                                  .kinds = {{"PDF", {"pdf"}}, {"PNG", {"png"}}},
                                                  .proposal = besidePiece(*page, title + ".pdf"),
                                                  .folderKey = "exportFolder"});
    if (!path.isEmpty())
        save(path, [&](const std::filesystem::path& file) {
            writeRoll(file, page->document(), title, bars);
        });
}

void TuningExports::exportScale()
{
    const std::string name = application_.tunings().name();
    const QString path = askWhereToSave(window_, {.title = tr("Export Tuning"),
                                                  .kinds = {{tr("Scale"), {"scl"}}},
                                                  .proposal = fileName(name) + ".scl",
                                                  .folderKey = "exportFolder"});
    if (path.isEmpty())
        return;
    save(path, [&](const std::filesystem::path& file) {
        TuningShape sounding;
        application_.player().with([&](const Instrument&, const Temperament& temperament) {
            sounding = soundingScale(temperament, name);
        });
        writeFile(file, writeScale(sounding.scale));
        writeFile(std::filesystem::path(file).replace_extension(".kbm"),
                  writeMapping(sounding.mapping, sounding.scale.pitches.size()));
    });
}

void TuningExports::showSendDialog()
{
    if (!sendDialog_) {
        sendDialog_ = new SendTuningDialog(sender_, &window_);
        sendDialog_->setAttribute(Qt::WA_DeleteOnClose);
    }
    sendDialog_->show();
    sendDialog_->raise();
    sendDialog_->activateWindow();
}

} // namespace velmora
