#include "desktop/roll/VoicesPanel.h"

#include "app/AppDelegate.h"
#include "desktop/roll/VoiceRow.h"
#include "desktop/widgets/finishTyping.h"
#include "sequencer/SequenceDocument.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <bitset>

namespace velmora {

VoicesPanel::VoicesPanel(AppDelegate& application)
    : application_(application), ownSounds_(new QCheckBox(tr("Every voice has its own sound"))),
      grid_(new QGridLayout)
{
    ownSounds_->setToolTip(tr("Otherwise the instrument plays every voice alike"));
    auto* list = new QWidget;
    grid_->setHorizontalSpacing(4);
    grid_->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(list);
    column->addLayout(grid_);
    column->addStretch();
    auto* area = new QScrollArea;
    area->setWidget(list);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* all = new QVBoxLayout(this);
    all->addWidget(ownSounds_);
    all->addWidget(area, 1);
    for (std::size_t channel = 0; channel < rows_.size(); ++channel)
        addRow(channel);
    connect(ownSounds_, &QCheckBox::toggled, this, [this](bool on) {
        Voices voices = document_->voices();
        voices.arePrograms = on;
        document_->mixVoices(voices);
    });
    connect(&application_, &AppDelegate::instrumentChanged, this, &VoicesPanel::showPrograms);
    showPrograms();
}

VoicesPanel::~VoicesPanel() = default;

void VoicesPanel::addRow(std::size_t channel)
{
    rows_[channel] = std::make_unique<VoiceRow>(channel, *grid_);
    VoiceRow* row = rows_[channel].get();
    connect(row, &VoiceRow::chosen, this, [this, channel] {
        document_->recorder().setChannel(static_cast<unsigned char>(channel));
        showAll();
    });
    connect(row, &VoiceRow::notesWanted, this,
            [this, channel] { document_->edit()->select(static_cast<unsigned char>(channel)); });
    connect(row, &VoiceRow::renamed, this, [this, channel](const QString& name) {
        change(
            channel, [&](Voice& voice) { voice.name = name.toStdString(); }, tr("Rename Voice"));
    });
    connect(row, &VoiceRow::presetChosen, this,
            [this, channel](const std::optional<PartSound::Preset>& preset) {
                change(
                    channel, [&](Voice& voice) { voice.sound.preset = preset; },
                    tr("Change Program of Voice"));
            });
    connect(row, &VoiceRow::volumeMoved, this, [this, channel](int volume) {
        change(
            channel, [&](Voice& voice) { voice.sound.volume = volume; },
            tr("Change Volume of Voice"));
    });
    connect(row, &VoiceRow::muted, this, [this, channel](bool on) {
        change(channel, [&](Voice& voice) { voice.isMuted = on; });
    });
    connect(row, &VoiceRow::soloed, this, [this, channel](bool on) {
        change(channel, [&](Voice& voice) { voice.isSolo = on; });
    });
    connect(row, &VoiceRow::locked, this, [this, channel](bool on) {
        change(channel, [&](Voice& voice) { voice.isLocked = on; });
    });
}

void VoicesPanel::change(std::size_t channel, const std::function<void(Voice&)>& change,
                         const QString& text)
{
    if (document_ == nullptr)
        return;
    Voices voices = document_->voices();
    change(voices[channel]);
    if (voices == document_->voices())
        return;
    if (text.isEmpty())
        document_->mixVoices(voices);
    else
        document_->setVoices(voices, text);
}

void VoicesPanel::setDocument(SequenceDocument* document)
{
    if (document != document_)
        finishTyping(*this);
    if (document_ != nullptr) {
        document_->disconnect(this);
        document_->recorder().disconnect(this);
    }
    document_ = document;
    if (document_ != nullptr) {
        connect(document_, &SequenceDocument::voicesChanged, this, &VoicesPanel::showAll);
        connect(document_, &SequenceDocument::changed, this, &VoicesPanel::showAll);
        connect(&document_->recorder(), &Recorder::optionsChanged, this, &VoicesPanel::showAll);
    }
    showAll();
}

void VoicesPanel::showPrograms()
{
    std::vector<Program> programs;
    application_.player().with([&](const Instrument& instrument, const Temperament&) {
        programs.assign(instrument.programs().begin(), instrument.programs().end());
    });
    for (const auto& row : rows_)
        row->showPrograms(programs);
    showAll();
}

void VoicesPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showAll();
}

void VoicesPanel::showAll()
{
    if (!isVisible())
        return;
    setEnabled(document_ != nullptr);
    std::bitset<midi::kChannels> used;
    if (document_ != nullptr) {
        for (const Note& note : document_->sequence().notes())
            used.set(note.channel % midi::kChannels);
        used.set(document_->recorder().channel() % midi::kChannels);
    }
    const QSignalBlocker block(ownSounds_);
    ownSounds_->setChecked(document_ == nullptr || document_->voices().arePrograms);
    // Also the rows that are hidden: the keyboard focus leaves them one by one then, and a field
    // that it leaves finishes its editing.
    for (std::size_t channel = 0; document_ != nullptr && channel < rows_.size(); ++channel)
        rows_[channel]->showVoice(document_->voices()[channel],
                                  document_->recorder().channel() == channel);
    for (std::size_t channel = 0; channel < rows_.size(); ++channel)
        rows_[channel]->setVisible(used[channel]);
}

} // namespace velmora
