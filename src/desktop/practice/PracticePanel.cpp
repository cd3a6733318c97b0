#include "desktop/practice/PracticePanel.h"

#include "base/Log.h"
#include "desktop/widgets/NoteSpinBox.h"
#include "desktop/widgets/scrolling.h"
#include "preferences/Preferences.h"
#include "sequencer/PracticeHistory.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/SequenceDocument.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>

namespace velmora {

namespace {

enum Hand { Both, Right, Left };

constexpr int kLastBar = 9999;
constexpr int kVoiceRows = 4; ///< The height of the list.

/// Returns the step at which a bar begins.
double startOfBar(const MusicalTime& time, int number)
{
    constexpr double kInside = 1e-6; // past the end of a bar, whatever the rounding
    double step = 0.0;
    Bar bar = time.barAt(step);
    while (bar.number < number)
        bar = time.barAt(bar.start + bar.length + kInside);
    return bar.start;
}

QSpinBox* newSpinBox(int least, int greatest, int value, const QString& suffix)
{
    auto* box = new QSpinBox;
    box->setRange(least, greatest);
    box->setValue(value);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    leaveWheelToScrolling(*box);
    return box;
}

} // namespace

PracticePanel::PracticePanel()
    : hands_(new QComboBox), split_(new NoteSpinBox), list_(new QListWidget),
      speed_(newSpinBox(10, 400, 100, tr(" %", "percent"))),
      faster_(newSpinBox(0, 20, 5, tr(" %", "percent"))),
      slowsDown_(new QCheckBox(tr("Slow down after mistakes"))),
      waits_(new QCheckBox(tr("Wait for missing keys"))),
      tolerance_(newSpinBox(50, 1000, 200, tr(" ms"))), repeats_(new QCheckBox(tr("Repeat bars"))),
      firstBar_(newSpinBox(1, kLastBar, 1, {})), lastBar_(newSpinBox(1, kLastBar, 4, {})),
      fallingNotes_(new QCheckBox(tr("Show falling notes"))), start_(new QPushButton),
      state_(new QLabel)
{
    makeFields();
    connectFields();
    keepSettings();
    setDocument(nullptr);
}

void PracticePanel::makeFields()
{
    hands_->addItems({tr("Both hands"), tr("Right hand"), tr("Left hand")});
    leaveWheelToScrolling(*hands_);
    split_->setToolTip(tr("The lowest key of the right hand"));
    leaveWheelToScrolling(*split_);
    list_->setAccessibleName(tr("Voices"));
    list_->setFixedHeight((kVoiceRows + 1) * fontMetrics().height());
    list_->setToolTip(tr("The voices that you play; the others play along"));
    faster_->setToolTip(tr("What a pass without a mistake adds to the speed"));
    tolerance_->setToolTip(tr("How early a key may be, and how long a chord may be rolled"));
    waits_->setToolTip(
        tr("If it does not wait, the piece goes on, and what you leave out is missed"));
    state_->setWordWrap(true);
    auto* bars = new QHBoxLayout;
    bars->addWidget(firstBar_);
    auto* to = new QLabel(tr("to", "bars"));
    bars->addWidget(to);
    bars->addWidget(lastBar_);
    to->setBuddy(lastBar_);
    firstBar_->setAccessibleName(tr("First bar"));
    lastBar_->setAccessibleName(tr("Last bar"));
    auto* form = new QFormLayout(this);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(tr("Play:"), hands_);
    form->addRow(tr("Split at:"), split_);
    form->addRow(tr("Voices:"), list_);
    form->addRow(tr("Speed:"), speed_);
    form->addRow(tr("Faster by:"), faster_);
    form->addRow(slowsDown_);
    form->addRow(waits_);
    form->addRow(tr("Tolerance:"), tolerance_);
    form->addRow(repeats_);
    form->addRow(tr("Bars:"), bars);
    form->addRow(fallingNotes_);
    form->addRow(start_);
    form->addRow(state_);
}

void PracticePanel::connectFields()
{
    connect(hands_, &QComboBox::currentIndexChanged, this,
            [this](int hand) { split_->setEnabled(hand != Both); });
    connect(speed_, &QSpinBox::valueChanged, this, [this](int percent) {
        if (document_ != nullptr)
            document_->transport().setSpeed(percent / 100.0);
    });
    connect(repeats_, &QCheckBox::toggled, this, &PracticePanel::repeatBars);
    for (QSpinBox* box : {firstBar_, lastBar_}) {
        connect(box, &QSpinBox::valueChanged, this, &PracticePanel::repeatBars);
        box->setEnabled(false);
        connect(repeats_, &QCheckBox::toggled, box, &QSpinBox::setEnabled);
    }
    connect(fallingNotes_, &QCheckBox::toggled, this, &PracticePanel::fallingNotesToggled);
    connect(start_, &QPushButton::clicked, this, &PracticePanel::toggle);
}

void PracticePanel::keepSettings()
{
    using Box = std::pair<QSpinBox*, const char*>;
    for (const auto& [box, key] : {Box{split_, "PracticeSplit"},
                                   {faster_, "PracticeFaster"},
                                   {tolerance_, "PracticeTolerance"}}) {
        const std::string name = key;
        box->setValue(getPrefInt(name));
        connect(box, &QSpinBox::valueChanged, [name](int value) { setPrefInt(name, value); });
    }
    using Check = std::pair<QCheckBox*, const char*>;
    for (const auto& [check, key] : {Check{slowsDown_, "PracticeSlowsDown"},
                                     {waits_, "PracticeWaits"},
                                     {fallingNotes_, "FallingNotes"}}) {
        const std::string name = key;
        check->setChecked(getPrefBool(name));
        connect(check, &QCheckBox::toggled, [name](bool isOn) { setPrefBool(name, isOn); });
    }
    hands_->setCurrentIndex(getPrefInt("PracticeHand"));
    split_->setEnabled(hands_->currentIndex() != Both);
    connect(hands_, &QComboBox::currentIndexChanged,
            [](int hand) { setPrefInt("PracticeHand", hand); });
}

void PracticePanel::setDocument(SequenceDocument* document)
{
    if (document_ != nullptr && document == document_)
        return; // only its title or its state has changed
    if (document_ != nullptr) {
        document_->practiceSession().stop();
        for (QObject* source : std::initializer_list<QObject*>{document_, &document_->transport(),
                                                               &document_->practiceSession()})
            source->disconnect(this);
    }
    document_ = nullptr; // the piece that was shown keeps its loop
    repeats_->setChecked(false);
    document_ = document;
    setEnabled(document_ != nullptr && document_->reading() == Reading::Musical);
    if (document_ != nullptr) {
        connect(document_, &SequenceDocument::changed, this, &PracticePanel::showVoices);
        connect(document_, &SequenceDocument::voicesChanged, this, &PracticePanel::showVoices);
        const Transport& transport = document_->transport();
        connect(&transport, &Transport::optionsChanged, this, &PracticePanel::showState);
        connect(&transport, &Transport::frame, this, [this] {
            showState();
            // Playing shows where it is by itself unless an interval is selected.
            if (document_->practiceSession().isRunning())
                document_->transport().revealPosition();
        });
        connect(&document_->practiceSession(), &PracticeSession::ended, this, [this] {
            const PracticeResult& result = document_->practiceSession().result();
            showState();
            if (!result.strokes.empty() || !result.wrong.empty())
                emit finished();
        });
    }
    showVoices();
    recallChoice();
    showState();
}

void PracticePanel::recallChoice()
{
    if (document_ == nullptr || document_->path().empty())
        return;
    const PracticeHistory history(practiceFolder(), document_->path());
    if (!history.choice())
        return;
    firstBar_->setValue(history.choice()->firstBar);
    lastBar_->setValue(history.choice()->lastBar);
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem& voice = *list_->item(row);
        const bool isChosen = history.choice()->voices[voice.data(Qt::UserRole).toUInt()];
        voice.setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
    }
}

void PracticePanel::keepChoice()
{
    if (document_->path().empty())
        return;
    try {
        PracticeHistory(practiceFolder(), document_->path())
            .choose({options().part.channels, firstBar_->value(), lastBar_->value()});
    } catch (const std::runtime_error& error) {
        logger("practice").warn("the choice for the next time was not kept: {}", error.what());
    }
}

PracticeOptions PracticePanel::options() const
{
    PracticeOptions options{.part = {},
                            .waits = waits_->isChecked(),
                            .tolerance = tolerance_->value() / 1000.0,
                            .speedStep = faster_->value() / 100.0,
                            .slowsDown = slowsDown_->isChecked()};
    // Keys that the keyboard does not have cannot be waited for.
    int lowest = getPrefInt("KeyRangeLo"), highest = getPrefInt("KeyRangeHi");
    if (hands_->currentIndex() == Right)
        lowest = std::max(lowest, split_->value());
    if (hands_->currentIndex() == Left)
        highest = std::min(highest, split_->value() - 1);
    options.part.lowestKey = static_cast<std::uint32_t>(lowest);
    options.part.highestKey = static_cast<std::uint32_t>(std::max(highest, 0));
    for (int row = 0; row < list_->count(); ++row) {
        const QListWidgetItem& voice = *list_->item(row);
        options.part.channels[voice.data(Qt::UserRole).toUInt()] =
            voice.checkState() == Qt::Checked;
    }
    return options;
}

void PracticePanel::toggle()
{
    PracticeSession& session = document_->practiceSession();
    if (session.isRunning()) {
        session.stop();
        return;
    }
    repeatBars();
    if (session.start(options())) {
        keepChoice();
        showState();
        return;
    }
    state_->setText(tr("There are no notes to practise. Choose other voices, another hand or "
                       "other bars."));
}

void PracticePanel::repeatBars()
{
    if (document_ == nullptr)
        return;
    Transport& transport = document_->transport();
    const MusicalTime& time = document_->time();
    if (repeats_->isChecked())
        transport.selectInterval(
            startOfBar(time, firstBar_->value()),
            startOfBar(time, std::max(firstBar_->value(), lastBar_->value()) + 1));
    else if (sender() == repeats_)
        transport.selectInterval(0.0, 0.0);
    if (repeats_->isChecked() || sender() == repeats_)
        transport.setLoop(repeats_->isChecked());
}

void PracticePanel::showVoices()
{
    std::bitset<16> voices;
    if (document_ != nullptr)
        for (const Note& note : document_->sequence().notes())
            voices.set(note.channel % voices.size());
    if (voices != voices_)
        list_->clear();
    voices_ = voices;
    int row = 0;
    for (std::size_t channel = 0; channel < voices.size(); ++channel) {
        if (!voices[channel])
            continue;
        if (row == list_->count()) {
            auto* item = new QListWidgetItem(list_);
            item->setData(Qt::UserRole, static_cast<uint>(channel));
            // Drums are not what a keyboard practises as a rule.
            item->setCheckState(channel == kDrumChannel ? Qt::Unchecked : Qt::Checked);
        }
        const std::string& name = document_->voices()[channel].name;
        list_->item(row++)->setText(name.empty() ? tr("Voice %1").arg(channel + 1)
                                                 : QString::fromStdString(name));
    }
}

void PracticePanel::showState()
{
    const bool isRunning = document_ != nullptr && document_->practiceSession().isRunning();
    start_->setText(isRunning ? tr("Stop Practising") : tr("Practise"));
    if (document_ == nullptr)
        return;
    {
        const QSignalBlocker blocker(speed_);
        speed_->setValue(static_cast<int>(std::lround(document_->transport().speed() * 100)));
    }
    const PracticeResult& result = document_->practiceSession().result();
    if (isRunning || !result.strokes.empty() || !result.missed.empty())
        state_->setText(tr("Right: %1, wrong: %2, missed: %3, passes: %4")
                            .arg(QLocale().toString(static_cast<int>(result.strokes.size())),
                                 QLocale().toString(static_cast<int>(result.wrong.size())),
                                 QLocale().toString(static_cast<int>(result.missed.size())),
                                 QLocale().toString(result.passes)));
}

} // namespace velmora
