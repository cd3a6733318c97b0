#include "desktop/roll/SequenceActions.h"

#include "desktop/widgets/icons.h"
#include "midi/messages.h"
#include "sequencer/NoteClipboard.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

namespace velmora {

namespace {

QAction* checkable(const char* picture, const QString& text, const QKeySequence& shortcut,
                   const QString& tip, QObject* parent)
{
    auto* action = new QAction(icon(picture), text, parent);
    action->setCheckable(true);
    action->setShortcut(shortcut);
    action->setToolTip(QString("%1 (%2)").arg(tip, shortcut.toString(QKeySequence::NativeText)));
    return action;
}

QAction* withIcon(QAction* action, const char* picture, QKeySequence::StandardKey shortcut)
{
    action->setIcon(icon(picture));
    action->setShortcut(shortcut);
    return action;
}

} // namespace

SequenceActions::SequenceActions(SequenceDocument& document, SequenceEditor& editor)
    : record(new QAction(icon("record"), {}, this)), play(new QAction(icon("play"), {}, this)),
      loop(checkable("loop", tr("&Loop"), QKeySequence(Qt::CTRL | Qt::Key_L),
                     tr("Repeat the selected time, or the whole sequence"), this)),
      snap(checkable("snap", tr("Snap to &Grid"), QKeySequence(Qt::CTRL | Qt::Key_G),
                     tr("Align notes and times with whole steps"), this)),
      undo(withIcon(document.undoStack().createUndoAction(this, tr("&Undo")), "undo",
                    QKeySequence::Undo)),
      redo(withIcon(document.undoStack().createRedoAction(this, tr("&Redo")), "redo",
                    QKeySequence::Redo)),
      cut(withIcon(new QAction(tr("Cu&t"), this), "cut", QKeySequence::Cut)),
      copy(withIcon(new QAction(tr("&Copy"), this), "copy", QKeySequence::Copy)),
      paste(withIcon(new QAction(tr("&Paste"), this), "paste", QKeySequence::Paste)),
      document_(document), editor_(editor),
      delete_(keyAction(tr("&Delete") + "\tDel", Qt::Key_Delete)),
      selectAll_(new QAction(tr("Select &All"), this)),
      deselect_(keyAction(tr("Select &None") + "\tEsc", Qt::Key_Escape)),
      start_(keyAction(tr("Go to &Start") + "\tCtrl+Down", Qt::Key_Down, Qt::ControlModifier)),
      previous_(keyAction(tr("Pre&vious Notes") + "\tDown", Qt::Key_Down)),
      next_(keyAction(tr("&Next Notes") + "\tUp", Qt::Key_Up)),
      channelMenu_(std::make_unique<QMenu>()), channels_(new QActionGroup(this))
{
    delete_->setIcon(icon("delete"));
    selectAll_->setShortcut(QKeySequence::SelectAll);
    makeChannels();
    connectEditing();
    connectTransport();
    showMode();
    showOptions();
    showSelection();
    showClipboard();
}

SequenceActions::~SequenceActions() = default;

QAction* SequenceActions::keyAction(const QString& text, int key, Qt::KeyboardModifiers modifiers)
{
    auto* action = new QAction(text, this);
    connect(action, &QAction::triggered, this, [this, key, modifiers] {
        editor_.keyDown(QKeyEvent(QEvent::KeyPress, key, modifiers));
    });
    return action;
}

void SequenceActions::makeChannels()
{
    channelMenu_->setTitle(tr("&Channel"));
    for (int channel = 0; channel < midi::kChannels; ++channel) {
        QAction* action = channels_->addAction(QString::number(channel + 1));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, channel] {
            document_.recorder().setChannel(static_cast<unsigned char>(channel));
        });
    }
    channels_->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    channelMenu_->addActions(channels_->actions());
}

void SequenceActions::connectEditing()
{
    connect(cut, &QAction::triggered, this, [this] { copyNotes(editor_.cut()); });
    connect(copy, &QAction::triggered, this, [this] { copyNotes(editor_.copy()); });
    connect(paste, &QAction::triggered, this, &SequenceActions::pasteNotes);
    connect(selectAll_, &QAction::triggered, this, [this] { editor_.selectAll(); });
    connect(&document_, &SequenceDocument::changed, this, &SequenceActions::showSelection);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &SequenceActions::showClipboard);
}

void SequenceActions::connectTransport()
{
    Transport& transport = document_.transport();
    Recorder& recorder = document_.recorder();
    connect(record, &QAction::triggered, &recorder, &Recorder::record);
    connect(play, &QAction::triggered, &transport, &Transport::play);
    connect(loop, &QAction::triggered, &transport, &Transport::setLoop);
    connect(snap, &QAction::triggered, &recorder, &Recorder::setSnapToGrid);
    connect(&transport, &Transport::modeChanged, this, &SequenceActions::showMode);
    connect(&transport, &Transport::optionsChanged, this, &SequenceActions::showOptions);
    connect(&recorder, &Recorder::optionsChanged, this, &SequenceActions::showOptions);
}

void SequenceActions::addEditing(QMenu& edit) const
{
    edit.addActions({undo, redo});
    edit.addSeparator();
    edit.addActions({cut, copy, paste, delete_});
    edit.addSeparator();
    edit.addActions({selectAll_, deselect_});
}

void SequenceActions::addTransport(QMenu& sequence) const
{
    sequence.addActions({record, play});
    sequence.addSeparator();
    sequence.addActions({start_, previous_, next_});
    sequence.addSeparator();
    sequence.addActions({loop, snap});
    sequence.addMenu(channelMenu_.get());
}

void SequenceActions::showMode()
{
    using Mode = Transport::Mode;
    const auto show = [this](QAction& action, Mode own, const char* picture, const QString& title,
                             const QString& key, const QString& tip) {
        const Mode mode = document_.transport().mode();
        const bool isOwn = mode == own;
        action.setIcon(icon(isOwn ? "stop" : picture));
        action.setText((isOwn ? tr("Stop") : title) + '\t' + key);
        action.setIconText(isOwn ? tr("Stop") : title);
        action.setToolTip(QString("%1 (%2)").arg(isOwn ? tr("Stop") : tip, key));
        action.setEnabled(isOwn || mode == Mode::Stopped);
    };
    show(*record, Mode::Recording, "record", tr("Record"), tr("Return"),
         tr("Record what you play, starting at the position"));
    show(*play, Mode::Playing, "play", tr("Play"), tr("Space"), tr("Play from the position"));
}

void SequenceActions::showOptions()
{
    loop->setChecked(document_.transport().loops());
    snap->setChecked(document_.recorder().snapToGrid());
    const auto actions = channels_->actions();
    for (int channel = 0; channel < midi::kChannels; ++channel)
        actions[channel]->setChecked(channel == document_.recorder().channel());
}

void SequenceActions::showSelection()
{
    const bool isAny = !document_.sequence().selection().empty();
    for (QAction* action : {cut, copy, delete_, deselect_})
        action->setEnabled(isAny);
}

void SequenceActions::showClipboard()
{
    // This query goes to the program that owns the clipboard, so it is made only when the content
    // changes.
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    paste->setEnabled(data != nullptr && data->hasFormat(kNotesMimeType));
}

void SequenceActions::copyNotes(const std::vector<Note>& notes)
{
    if (notes.empty())
        return;
    auto* data = new QMimeData; // the clipboard takes ownership
    data->setData(kNotesMimeType, encodeNotes(notes));
    QGuiApplication::clipboard()->setMimeData(data);
}

void SequenceActions::pasteNotes()
{
    if (const QMimeData* data = QGuiApplication::clipboard()->mimeData())
        editor_.paste(decodeNotes(data->data(kNotesMimeType)));
}

} // namespace velmora
