#include "desktop/roll/VoiceRow.h"

#include "desktop/instruments/ProgramList.h"
#include "desktop/roll/RollColors.h"
#include "sequencer/Sequence.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kSwatch = 14;
constexpr int kMostVolume = 127;

/// Returns a square in the colour of a voice's notes.
QIcon swatch(std::size_t channel)
{
    const Note note{.velocity = 1.0F, .channel = static_cast<std::uint32_t>(channel)};
    QPixmap square(kSwatch, kSwatch);
    square.fill(RollColors(QApplication::palette()).of(note));
    return square;
}

QToolButton* makeSwitch(const QString& letter, const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setText(letter);
    button->setToolTip(toolTip);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

PartSound::Preset presetOf(const Program& program)
{
    return {program.bank, static_cast<std::uint8_t>(program.number), program.isPercussion};
}

} // namespace

VoiceRow::VoiceRow(std::size_t channel, QGridLayout& grid)
    : channel_(channel),
      number_(makeSwitch(QString::number(channel + 1),
                         tr("Record and draw on this voice; double-click to select its notes"))),
      name_(new QLineEdit), program_(new QComboBox), volume_(new QSpinBox),
      mute_(makeSwitch(tr("M", "mute"), tr("Mute"))),
      solo_(makeSwitch(tr("S", "solo"), tr("Solo: only such voices sound"))),
      lock_(makeSwitch(tr("L", "lock"), tr("Lock: protect its notes from edits"))),
      menu_(new QMenu(number_)), notes_(menu_->addAction(tr("Select &Notes"))),
      muting_(menu_->addAction(tr("&Mute"))), soloing_(menu_->addAction(tr("&Solo"))),
      locking_(menu_->addAction(tr("&Lock")))
{
    number_->setIcon(swatch(channel));
    number_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    number_->installEventFilter(this);
    name_->setMinimumWidth(70);
    program_->setEditable(true);
    program_->setInsertPolicy(QComboBox::NoInsert);
    program_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    program_->setMinimumContentsLength(6);
    program_->completer()->setFilterMode(Qt::MatchContains);
    program_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    volume_->setRange(0, kMostVolume);
    volume_->setSuffix(QStringLiteral("/%1").arg(kMostVolume));
    volume_->setKeyboardTracking(false);
    const int row = 2 * static_cast<int>(channel);
    int column = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{number_, name_, mute_, solo_, lock_})
        grid.addWidget(control, row, column++);
    grid.addWidget(program_, row + 1, 0, 1, 2);
    grid.addWidget(volume_, row + 1, 2, 1, 3);

    makeMenu();
    nameControls(tr("Voice %1").arg(channel + 1));
    connect(number_, &QToolButton::clicked, this, &VoiceRow::chosen);
    connect(name_, &QLineEdit::editingFinished, this, [this] { emit renamed(name_->text()); });
    connect(program_, &QComboBox::activated, this, [this](int place) {
        if (place >= 0 && place < static_cast<int>(presets_.size()))
            emit presetChosen(presets_[static_cast<std::size_t>(place)]);
    });
    connect(volume_, &QSpinBox::valueChanged, this, &VoiceRow::volumeMoved);
    connect(mute_, &QToolButton::toggled, this, &VoiceRow::muted);
    connect(solo_, &QToolButton::toggled, this, &VoiceRow::soloed);
    connect(lock_, &QToolButton::toggled, this, &VoiceRow::locked);
}

void VoiceRow::makeMenu()
{
    for (QToolButton* button : {number_, mute_, solo_, lock_}) {
        button->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(button, &QWidget::customContextMenuRequested, menu_,
                [this, button](QPoint place) { menu_->popup(button->mapToGlobal(place)); });
    }
    for (QAction* action : {muting_, soloing_, locking_})
        action->setCheckable(true);
    connect(notes_, &QAction::triggered, this, &VoiceRow::notesWanted);
    connect(muting_, &QAction::triggered, this, &VoiceRow::muted);
    connect(soloing_, &QAction::triggered, this, &VoiceRow::soloed);
    connect(locking_, &QAction::triggered, this, &VoiceRow::locked);
}

void VoiceRow::showVoice(const Voice& voice, bool isChosen)
{
    const QString name = QString::fromStdString(voice.name);
    const QSignalBlocker blocks[] = {QSignalBlocker(name_),   QSignalBlocker(program_),
                                     QSignalBlocker(volume_), QSignalBlocker(mute_),
                                     QSignalBlocker(solo_),   QSignalBlocker(lock_)};
    number_->setChecked(isChosen);
    if (name_->text() != name)
        name_->setText(name);
    volume_->setValue(voice.sound.volume);
    mute_->setChecked(voice.isMuted);
    solo_->setChecked(voice.isSolo);
    lock_->setChecked(voice.isLocked);
    muting_->setChecked(voice.isMuted);
    soloing_->setChecked(voice.isSolo);
    locking_->setChecked(voice.isLocked);
    auto place = std::ranges::find(presets_, voice.sound.preset);
    if (place == presets_.end() && !presets_.empty()) {
        // A kit or a variation that the list of General MIDI does not have.
        const PartSound::Preset& preset = *voice.sound.preset;
        program_->addItem(
            preset.isPercussion
                ? tr("Drum kit %1").arg(preset.number + 1)
                : tr("Program %1 of bank %2").arg(preset.number + 1).arg(preset.bank));
        presets_.emplace_back(preset);
        place = std::prev(presets_.end());
    }
    program_->setCurrentIndex(static_cast<int>(place - presets_.begin()));
    // A text that is too long shows its beginning.
    for (QLineEdit* field : {name_, program_->lineEdit()})
        if (!field->hasFocus())
            field->home(false);
    nameControls(name.isEmpty() ? tr("Voice %1").arg(channel_ + 1) : name);
}

void VoiceRow::nameControls(const QString& voice)
{
    name_->setPlaceholderText(tr("Voice %1").arg(channel_ + 1));
    number_->setAccessibleName(tr("Record and draw on %1").arg(voice));
    name_->setAccessibleName(tr("Name of voice %1").arg(channel_ + 1));
    program_->setAccessibleName(tr("Program of %1").arg(voice));
    volume_->setAccessibleName(tr("Volume of %1").arg(voice));
    mute_->setAccessibleName(tr("Mute %1").arg(voice));
    solo_->setAccessibleName(tr("Solo %1").arg(voice));
    lock_->setAccessibleName(tr("Lock %1").arg(voice));
}

void VoiceRow::showPrograms(std::span<const Program> programs)
{
    const QSignalBlocker block(program_);
    program_->clear();
    presets_.clear();
    const bool hasParts = !programs.empty();
    program_->setEnabled(hasParts);
    volume_->setEnabled(hasParts);
    program_->setToolTip(hasParts ? tr("What the voice plays")
                                  : tr("This instrument plays every voice alike"));
    volume_->setToolTip(tr("How loud the voice is, from 0 to 127"));
    if (!hasParts)
        return;
    program_->addItem(tr("Like the instrument"));
    presets_.emplace_back(std::nullopt);
    for (const Program& program : programs) {
        program_->addItem(programText(program));
        presets_.emplace_back(presetOf(program));
    }
}

void VoiceRow::setVisible(bool isVisible)
{
    for (QWidget* control :
         std::initializer_list<QWidget*>{number_, name_, program_, volume_, mute_, solo_, lock_})
        control->setVisible(isVisible);
}

bool VoiceRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        emit notesWanted();
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
