#include "desktop/roll/EditingActions.h"

#include "desktop/roll/QuantiseDialog.h"
#include "desktop/roll/SelectDialog.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QApplication>
#include <QMenu>

#include <utility>

namespace velmora {

namespace {

constexpr int kOctave = 12;

/// A nudge in steps: less than one hears as another rhythm.
constexpr double kNudge = 0.125;

/// How much louder a note becomes at once: a sixteenth of the range.
constexpr double kLouder = 8.0 / 127.0;

} // namespace

EditingActions::EditingActions(Commands& commands, QMenu& selected)
    : commands_(commands),
      select_(commands.add("edit.select", tr("Edit"),
                           {tr("Select by Voice or Velocity…"),
                            tr("Select the notes of a voice, of some keys and velocities")},
                           {Qt::CTRL | Qt::SHIFT | Qt::Key_A})),
      duplicate_(add("edit.duplicate", tr("Duplicate"), Qt::CTRL | Qt::Key_D,
                     [](SequenceEditor& editor) { editor.duplicate(); })),
      quantise_(commands.add("edit.quantise", tr("Edit"),
                             {tr("Quantise…"), tr("Move notes to the grid")},
                             {Qt::CTRL | Qt::Key_U})),
      divide_(add("edit.split", tr("Split Notes at the Position"), Qt::CTRL | Qt::SHIFT | Qt::Key_J,
                  [](SequenceEditor& editor) { editor.divide(); })),
      join_(add("edit.join", tr("Join Notes"), Qt::CTRL | Qt::Key_J,
                [](SequenceEditor& editor) { editor.join(); })),
      connect_(add("edit.legato", tr("Connect Notes (Legato)"), Qt::CTRL | Qt::SHIFT | Qt::Key_L,
                   [](SequenceEditor& editor) { editor.connect(); })),
      sound_(commands.add("edit.soundNotes", tr("Edit"),
                          {tr("Hear Notes"), tr("Sound notes that are pressed or drawn")})),
      dragSelects_(
          commands.add("edit.dragSelects", tr("Edit"),
                       {tr("Drag Selects Notes"),
                        tr("Let a drag across an empty place select notes instead of a time")}))
{
    dragSelects_->setCheckable(true);
    dragSelects_->setChecked(getPrefBool("DragSelects"));
    connect(dragSelects_, &QAction::toggled, this, [](bool on) { setPrefBool("DragSelects", on); });
    sound_->setCheckable(true);
    sound_->setChecked(getPrefBool("SoundNotes"));
    connect(sound_, &QAction::toggled, this, [](bool on) { setPrefBool("SoundNotes", on); });
    connect(select_, &QAction::triggered, this, &EditingActions::askWhatToSelect);
    connect(quantise_, &QAction::triggered, this, &EditingActions::askHowToQuantise);
    addSelected(selected);
    showTarget();
}

void EditingActions::addSelected(QMenu& menu)
{
    menu.addActions(
        {add("edit.octaveUp", tr("Move Notes an Octave Up"), Qt::ALT | Qt::SHIFT | Qt::Key_Right,
             [](SequenceEditor& editor) { editor.transpose(kOctave); }),
         add("edit.octaveDown", tr("Move Notes an Octave Down"), Qt::ALT | Qt::SHIFT | Qt::Key_Left,
             [](SequenceEditor& editor) { editor.transpose(-kOctave); }),
         add("edit.nudgeLater", tr("Nudge Notes Later"), Qt::ALT | Qt::Key_PageUp,
             [](SequenceEditor& editor) { editor.nudge(kNudge); }),
         add("edit.nudgeEarlier", tr("Nudge Notes Earlier"), Qt::ALT | Qt::Key_PageDown,
             [](SequenceEditor& editor) { editor.nudge(-kNudge); }),
         add("edit.louder", tr("Make Notes Louder"), Qt::ALT | Qt::Key_Plus,
             [](SequenceEditor& editor) { editor.changeVelocity(kLouder); }),
         add("edit.softer", tr("Make Notes Softer"), Qt::ALT | Qt::Key_Minus,
             [](SequenceEditor& editor) { editor.changeVelocity(-kLouder); })});
    menu.addSeparator();
}

QAction* EditingActions::add(const char* id, const QString& text, const QKeySequence& shortcut,
                             std::function<void(SequenceEditor&)> change)
{
    QAction* action = commands_.add(id, tr("Edit"), {text, {}}, {shortcut});
    connect(action, &QAction::triggered, this,
            [this, change = std::move(change)] { change(*editor_); });
    return action;
}

void EditingActions::setTarget(SequenceDocument* document, SequenceEditor* editor)
{
    if (document_ != nullptr) {
        document_->disconnect(this);
        document_->transport().disconnect(this);
    }
    document_ = document;
    editor_ = editor;
    if (document_ != nullptr) {
        connect(document_, &SequenceDocument::changed, this, &EditingActions::showTarget);
        connect(&document_->transport(), &Transport::modeChanged, this,
                &EditingActions::showTarget);
    }
    showTarget();
}

void EditingActions::addTo(QMenu& edit) const
{
    edit.addSeparator();
    edit.addActions({select_, duplicate_});
    edit.addSeparator();
    edit.addActions({quantise_, divide_, join_, connect_});
    edit.addSeparator();
    edit.addActions({dragSelects_, sound_});
}

void EditingActions::showTarget()
{
    const bool isAny = document_ != nullptr && !document_->sequence().notes().empty();
    const bool isSelected = isAny && !document_->sequence().selection().empty();
    for (QAction* action : {select_, divide_})
        action->setEnabled(isAny);
    for (QAction* action : {duplicate_, join_, connect_})
        action->setEnabled(isSelected);
    // A recording would change the notes under the preview.
    quantise_->setEnabled(isAny && document_->transport().mode() != Transport::Mode::Recording);
}

void EditingActions::askHowToQuantise()
{
    QuantiseDialog dialog(*document_, *editor_, quantisation_, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted)
        quantisation_ = dialog.choice();
}

void EditingActions::askWhatToSelect()
{
    SelectDialog(*editor_, QApplication::activeWindow()).exec();
}

} // namespace velmora
