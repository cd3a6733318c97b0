#include "desktop/roll/SequenceActions.h"

#include "desktop/roll/EditingActions.h"
#include "desktop/roll/RollActions.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/UndoHistory.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/windowPlace.h"
#include "midi/messages.h"
#include "sequencer/NoteClipboard.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QUndoStack>

#include <utility>

namespace velmora {

namespace {

/// Gives an action of the undo stacks the picture of its command.
QAction* pictured(QAction* action, const char* picture)
{
    action->setIcon(icon(picture));
    return action;
}

} // namespace

SequenceActions::SequenceActions(Commands& commands)
    : record(commands.add("piece.record", tr("Piece"), {tr("&Record"), {}, "record"},
                          {Qt::Key_Return})),
      play(commands.add("piece.play", tr("Piece"), {tr("&Play"), {}, "play"}, {Qt::Key_Space})),
      loop(
          commands.add("piece.loop", tr("Piece"),
                       {tr("&Loop"), tr("Repeat the selected time, or the whole sequence"), "loop"},
                       {Qt::CTRL | Qt::Key_L})),
      snap(commands.add(
          "piece.snap", tr("Piece"),
          {tr("Snap to &Grid"), tr("Align notes and times with the lines of the grid"), "snap"},
          {Qt::CTRL | Qt::Key_G})),
      commands_(commands), recording_(commands), time_(commands),
      undo_(pictured(undoStacks_.createUndoAction(this, tr("&Undo")), "undo")),
      redo_(pictured(undoStacks_.createRedoAction(this, tr("&Redo")), "redo")),
      history_(
          add("edit.history", nullptr, tr("Undo History"), {Qt::CTRL | Qt::SHIFT | Qt::Key_H})),
      cut_(add("edit.cut", "cut", tr("Cu&t"), QKeySequence::keyBindings(QKeySequence::Cut))),
      copy_(add("edit.copy", "copy", tr("&Copy"), QKeySequence::keyBindings(QKeySequence::Copy))),
      paste_(
          add("edit.paste", "paste", tr("&Paste"), QKeySequence::keyBindings(QKeySequence::Paste))),
      delete_(addKey("edit.delete", tr("&Delete"), {Qt::Key_Delete, Qt::Key_Backspace},
                     Qt::Key_Delete)),
      selectAll_(add("edit.selectAll", nullptr, tr("Select &All"), {Qt::CTRL | Qt::Key_A})),
      deselect_(addKey("edit.selectNone", tr("Select &None"), {Qt::Key_Escape}, Qt::Key_Escape)),
      nextNote_(add("edit.nextNote", nullptr, tr("Select Ne&xt Note"), {Qt::CTRL | Qt::Key_Right})),
      previousNote_(add("edit.previousNote", nullptr, tr("Select Pre&vious Note"),
                        {Qt::CTRL | Qt::Key_Left})),
      start_(addKey("piece.start", tr("Go to &Start"), {Qt::CTRL | Qt::Key_Down}, Qt::Key_Down,
                    Qt::ControlModifier)),
      end_(addKey("piece.end", tr("Go to &End"), {Qt::CTRL | Qt::Key_Up}, Qt::Key_Up,
                  Qt::ControlModifier)),
      previous_(addKey("piece.previous", tr("Pre&vious Notes"), {Qt::Key_Down}, Qt::Key_Down)),
      next_(addKey("piece.next", tr("&Next Notes"), {Qt::Key_Up}, Qt::Key_Up)),
      corrections_(std::make_unique<QMenu>(tr("&Selected Notes"))),
      editing_(std::make_unique<EditingActions>(commands, *corrections_)),
      channelMenu_(std::make_unique<QMenu>(tr("&Channel"))), channels_(new QActionGroup(this))
{
    commands_.add("edit.undo", tr("Edit"), *undo_, {QKeySequence(QKeySequence::Undo)});
    commands_.add("edit.redo", tr("Edit"), *redo_, QKeySequence::keyBindings(QKeySequence::Redo));
    delete_->setIcon(icon("delete"));
    for (QAction* action : {loop, snap})
        action->setCheckable(true);
    for (QAction* action : {record, play}) // a key that is held down must not stop it again
        action->setAutoRepeat(false);
    makeCorrections();
    roll_ = std::make_unique<RollActions>(commands);
    connect(roll_.get(), &RollActions::turned, this, &SequenceActions::rollTurned);
    makeChannels();
    connectCommands();
    setTarget({});
}

SequenceActions::~SequenceActions() = default;

void SequenceActions::setTarget(const Target& target)
{
    if (target_.document != nullptr) {
        for (QObject* source : std::initializer_list<QObject*>{
                 target_.document, &target_.document->transport(), &target_.document->recorder()})
            source->disconnect(this);
        undoStacks_.removeStack(&target_.document->undoStack());
    }
    target_ = target;
    editing_->setTarget(target.document, target.editor);
    roll_->setRoll(target.roll);
    if (target_.document != nullptr)
        connectTarget();
    const bool isAny = target_.document != nullptr;
    for (QAction* action :
         {play, loop, snap, selectAll_, nextNote_, previousNote_, start_, end_, previous_, next_})
        action->setEnabled(isAny);
    channelMenu_->setEnabled(isAny);
    recording_.setDocument(target_.document);
    time_.setDocument(target_.document, target_.roll);
    showMode();
    showOptions();
    showSelection();
    showClipboard();
}

void SequenceActions::connectTarget()
{
    SequenceDocument& document = *target_.document;
    undoStacks_.addStack(&document.undoStack());
    undoStacks_.setActiveStack(&document.undoStack());
    connect(&document, &SequenceDocument::changed, this, &SequenceActions::showSelection);
    connect(&document.transport(), &Transport::modeChanged, this, &SequenceActions::showMode);
    connect(&document.transport(), &Transport::frame, this, &SequenceActions::showDeselect);
    connect(&document.transport(), &Transport::optionsChanged, this, &SequenceActions::showOptions);
    connect(&document.recorder(), &Recorder::optionsChanged, this, &SequenceActions::showOptions);
}

QAction* SequenceActions::add(const char* id, const char* icon, const QString& text,
                              const QList<QKeySequence>& shortcuts)
{
    const QString group = QString(id).startsWith("edit.") ? tr("Edit") : tr("Piece");
    return commands_.add(id, group, {text, {}, icon}, shortcuts);
}

QAction* SequenceActions::addKey(const char* id, const QString& text,
                                 const QList<QKeySequence>& shortcuts, int key,
                                 Qt::KeyboardModifiers modifiers)
{
    QAction* action = add(id, nullptr, text, shortcuts);
    connect(action, &QAction::triggered, this, [this, key, modifiers] {
        if (target_.editor != nullptr)
            target_.editor->keyDown(QKeyEvent(QEvent::KeyPress, key, modifiers));
    });
    return action;
}

void SequenceActions::addCorrection(const char* id, const QString& text,
                                    const QKeySequence& shortcut,
                                    std::function<void(SequenceEditor&)> correct)
{
    QAction* action = add(id, nullptr, text, {shortcut});
    corrections_->addAction(action);
    connect(action, &QAction::triggered, this,
            [this, correct = std::move(correct)] { correct(*target_.editor); });
}

void SequenceActions::makeCorrections()
{
    addCorrection("edit.noteUp", tr("Move Notes &Up a Semitone"), Qt::ALT | Qt::Key_Right,
                  [](SequenceEditor& editor) { editor.moveSelection(1, 0); });
    addCorrection("edit.noteDown", tr("Move Notes &Down a Semitone"), Qt::ALT | Qt::Key_Left,
                  [](SequenceEditor& editor) { editor.moveSelection(-1, 0); });
    addCorrection("edit.noteLater", tr("Move Notes &Later"), Qt::ALT | Qt::Key_Up,
                  [](SequenceEditor& editor) { editor.moveSelection(0, 1); });
    addCorrection("edit.noteEarlier", tr("Move Notes &Earlier"), Qt::ALT | Qt::Key_Down,
                  [](SequenceEditor& editor) { editor.moveSelection(0, -1); });
    addCorrection("edit.noteLonger", tr("Make Notes Lon&ger"), Qt::ALT | Qt::SHIFT | Qt::Key_Up,
                  [](SequenceEditor& editor) { editor.resizeSelection(1); });
    addCorrection("edit.noteShorter", tr("Make Notes &Shorter"), Qt::ALT | Qt::SHIFT | Qt::Key_Down,
                  [](SequenceEditor& editor) { editor.resizeSelection(-1); });
}

void SequenceActions::makeChannels()
{
    for (int channel = 0; channel < midi::kChannels; ++channel) {
        QAction* action = channels_->addAction(QString::number(channel + 1));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, channel] {
            target_.document->recorder().setChannel(static_cast<unsigned char>(channel));
        });
    }
    channels_->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    channelMenu_->addActions(channels_->actions());
}

void SequenceActions::connectCommands()
{
    connect(cut_, &QAction::triggered, this, [this] { copyNotes(target_.editor->cut()); });
    connect(copy_, &QAction::triggered, this, [this] { copyNotes(target_.editor->copy()); });
    connect(paste_, &QAction::triggered, this, &SequenceActions::pasteNotes);
    connect(history_, &QAction::triggered, this, &SequenceActions::showHistory);
    connect(selectAll_, &QAction::triggered, this, [this] { target_.editor->selectAll(); });
    using enum SequenceEditor::Direction;
    connect(nextNote_, &QAction::triggered, this,
            [this] { target_.editor->selectNeighbour(Forward); });
    connect(previousNote_, &QAction::triggered, this,
            [this] { target_.editor->selectNeighbour(Backward); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &SequenceActions::showClipboard);
    connect(record, &QAction::triggered, this, [this] {
        if (target_.document == nullptr)
            emit pieceWanted();
        if (target_.document != nullptr)
            target_.document->recorder().record();
    });
    connect(play, &QAction::triggered, this, [this] { target_.document->transport().play(); });
    connect(loop, &QAction::triggered, this,
            [this](bool on) { target_.document->transport().setLoop(on); });
    connect(snap, &QAction::triggered, this,
            [this](bool on) { target_.document->recorder().setSnapToGrid(on); });
}

void SequenceActions::addEditing(QMenu& edit) const
{
    edit.addActions({undo_, redo_, history_});
    edit.addSeparator();
    edit.addActions({cut_, copy_, paste_, delete_});
    edit.addSeparator();
    edit.addActions({selectAll_, deselect_, nextNote_, previousNote_});
    edit.addMenu(corrections_.get());
    editing_->addTo(edit);
}

void SequenceActions::addTransport(QMenu& sequence) const
{
    sequence.addActions({record, play});
    sequence.addSeparator();
    sequence.addActions({start_, end_, previous_, next_});
    sequence.addSeparator();
    sequence.addActions({loop, snap});
    recording_.addTo(sequence);
    time_.addTo(sequence);
    sequence.addMenu(channelMenu_.get());
}

void SequenceActions::addZoom(QMenu& view) const
{
    roll_->addTo(view);
}

void SequenceActions::showMode()
{
    using Mode = Transport::Mode;
    const Mode mode =
        target_.document == nullptr ? Mode::Stopped : target_.document->transport().mode();
    const auto show = [mode](QAction& action, Mode own, const char* picture, const QString& title,
                             const QString& tip) {
        const bool isOwn = mode == own;
        action.setIcon(icon(isOwn ? "stop" : picture));
        action.setText(isOwn ? tr("Stop") : title);
        Commands::setTip(action, isOwn ? tr("Stop") : tip);
    };
    show(*record, Mode::Recording, "record", tr("&Record"),
         tr("Record what you play, starting at the position"));
    show(*play, Mode::Playing, "play", tr("&Play"), tr("Play from the position"));
    record->setEnabled(mode != Mode::Playing);
    play->setEnabled(mode != Mode::Recording && target_.document != nullptr);
}

void SequenceActions::showOptions()
{
    const SequenceDocument* document = target_.document;
    loop->setChecked(document != nullptr && document->transport().loops());
    snap->setChecked(document != nullptr && document->recorder().snapToGrid());
    const auto actions = channels_->actions();
    for (int channel = 0; channel < midi::kChannels; ++channel)
        actions[channel]->setChecked(document != nullptr &&
                                     channel == document->recorder().channel());
}

void SequenceActions::showSelection()
{
    const bool isAny =
        target_.document != nullptr && !target_.document->sequence().selection().empty();
    for (QAction* action : {cut_, copy_, delete_})
        action->setEnabled(isAny);
    showDeselect();
    for (QAction* action : corrections_->actions())
        action->setEnabled(isAny);
}

void SequenceActions::showDeselect()
{
    const SequenceDocument* document = target_.document;
    deselect_->setEnabled(document != nullptr && (!document->sequence().selection().empty() ||
                                                  document->transport().beatsToCount() > 0));
}

void SequenceActions::showClipboard()
{
    // This query goes to the program that owns the clipboard, so it is made only when the content
    // or the piece changes.
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    paste_->setEnabled(target_.document != nullptr && data != nullptr &&
                       data->hasFormat(kNotesMimeType));
}

void SequenceActions::showHistory()
{
    if (historyWindow_ == nullptr)
        historyWindow_ = std::make_unique<UndoHistory>(undoStacks_);
    present(*historyWindow_);
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
        target_.editor->paste(decodeNotes(data->data(kNotesMimeType)));
}

} // namespace velmora
