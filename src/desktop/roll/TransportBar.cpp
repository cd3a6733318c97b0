#include "desktop/roll/TransportBar.h"

#include "app/AppDelegate.h"
#include "desktop/roll/SequenceActions.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/finishTyping.h"
#include "desktop/widgets/nameParts.h"
#include "midi/messages.h"
#include "sequencer/SequenceDocument.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace velmora {

namespace {

constexpr double kMinTempo = 4.0; // the slowest that a file can say is 3.6
constexpr double kMaxTempo = 999.0;
constexpr double kPlainTempo = 120.0; // in the plain reading, that of a piece as written
constexpr int kMinPercent = 10;
constexpr int kMaxPercent = 400;

/// Returns the time of the position in minutes, seconds and tenths, such as "1:05.3".
QString timeText(const Transport& transport, const QLocale& locale)
{
    const double seconds =
        std::max(0.0, transport.pace().secondsBetween(0.0, transport.position()));
    const auto tenths = static_cast<qlonglong>(seconds * 10);
    return QString("%1:%2%3%4")
        .arg(tenths / 600)
        .arg(tenths / 10 % 60, 2, 10, QChar('0'))
        .arg(locale.decimalPoint())
        .arg(tenths % 10);
}

} // namespace

TransportBar::TransportBar(SequenceActions& actions, AppDelegate& application)
    : application_(application), tempo_(new QDoubleSpinBox), speed_(new QSpinBox),
      channel_(new QComboBox), position_(new QLabel)
{
    setObjectName("transport");
    setWindowTitle(tr("Transport"));
    setMovable(false);
    nameParts(*this);
    using Kind = LearnedAction::Kind;
    addButton(*actions.record, tr("Stop"), {{Kind::Record}, tr("Record")});
    addButton(*actions.play, tr("Stop"), {{Kind::Play}, tr("Play")});
    addSeparator();
    addAction(actions.loop);
    addAction(actions.snap);
    addRecording(actions.recording());
    addSeparator();
    addTempo();
    addAction(actions.time().tap);
    addSpeed();
    addChannel();
    addSeparator();
    position_->setToolTip(
        tr("The position in minutes and seconds at this speed, and in bars and beats"));
    position_->setMargin(6);
    addWidget(position_);
    setDocument(nullptr);
}

void TransportBar::setDocument(SequenceDocument* document)
{
    if (document != document_)
        finishTyping(*this);
    if (document_ != nullptr) {
        document_->transport().disconnect(this);
        document_->recorder().disconnect(this);
    }
    document_ = document;
    for (QWidget* field : std::initializer_list<QWidget*>{tempo_, speed_, channel_, position_})
        field->setEnabled(document_ != nullptr);
    if (document_ == nullptr) {
        position_->clear();
        return;
    }
    const Transport& transport = document_->transport();
    connect(&transport, &Transport::optionsChanged, this, &TransportBar::showOptions);
    connect(&document_->recorder(), &Recorder::optionsChanged, this, &TransportBar::showOptions);
    connect(&transport, &Transport::moved, this, &TransportBar::showPosition);
    connect(&transport, &Transport::frame, this, &TransportBar::showPosition);
    showOptions();
}

void TransportBar::addButton(QAction& action, const QString& otherTitle, const Learnable& learnable)
{
    addAction(&action);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(&action));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // The button has room for either title, so that nothing moves when the title changes.
    const int spread = fontMetrics().horizontalAdvance(otherTitle) -
                       fontMetrics().horizontalAdvance(action.iconText());
    button->setMinimumWidth(button->sizeHint().width() + std::max(0, spread));
    new LearnMenu(*button, application_, {learnable, {{LearnedAction::Kind::Stop}, tr("Stop")}});
}

void TransportBar::addRecording(RecordingActions& recording)
{
    addAction(recording.metronome);
    auto* metronome = qobject_cast<QToolButton*>(widgetForAction(recording.metronome));
    metronome->setMenu(&recording.metronomeMenu());
    metronome->setPopupMode(QToolButton::MenuButtonPopup);
    connect(&recording, &RecordingActions::volumeChanged, this,
            [this](float volume) { application_.metronome().setVolume(volume); });
    addAction(recording.punch);
    auto* takes = new QToolButton;
    takes->setText(tr("Takes"));
    takes->setToolTip(tr("Choose one of the takes that were recorded in the loop"));
    takes->setMenu(&recording.takesMenu());
    takes->setPopupMode(QToolButton::InstantPopup);
    QAction* place = addWidget(takes);
    place->setVisible(recording.takesMenu().isEnabled());
    connect(&recording, &RecordingActions::takesChanged, place, &QAction::setVisible);
}

void TransportBar::addTempo()
{
    auto* label = new QLabel(tr("Te&mpo"));
    label->setMargin(4);
    label->setBuddy(tempo_);
    addWidget(label);
    tempo_->setRange(kMinTempo, kMaxTempo);
    tempo_->setDecimals(1);
    tempo_->setValue(kPlainTempo);
    tempo_->setSuffix(tr(" bpm"));
    tempo_->setKeyboardTracking(false);
    tempo_->setAccessibleName(tr("Tempo"));
    tempo_->setToolTip(tr("The tempo of the piece at the position in beats per minute (Alt+M)"));
    connect(tempo_, &QDoubleSpinBox::valueChanged, this, &TransportBar::changeTempo);
    connect(tempo_, &QDoubleSpinBox::editingFinished, this, [this] {
        if (tempo_->hasFocus()) // otherwise the user has already moved the focus
            emit done();
    });
    addWidget(tempo_);
}

void TransportBar::addSpeed()
{
    speed_->setRange(kMinPercent, kMaxPercent);
    speed_->setValue(100);
    speed_->setSuffix(tr(" %", "percent"));
    speed_->setSingleStep(5);
    speed_->setKeyboardTracking(false);
    speed_->setAccessibleName(tr("Speed"));
    speed_->setToolTip(tr(
        "How fast the piece is played, as a part of its tempo. It is not saved with the piece."));
    connect(speed_, &QSpinBox::valueChanged, this, [this](int percent) {
        if (document_ != nullptr) // what was typed is reported when the last piece closes, too
            document_->transport().setSpeed(percent / 100.0);
    });
    connect(speed_, &QSpinBox::editingFinished, this, [this] {
        if (speed_->hasFocus())
            emit done();
    });
    speedField_ = addWidget(speed_);
}

void TransportBar::changeTempo(double beats)
{
    if (document_ == nullptr) // what was typed is reported when the last piece closes, too
        return;
    Transport& transport = document_->transport();
    if (document_->reading() == Reading::Plain) {
        transport.setSpeed(beats / kPlainTempo);
        return;
    }
    MusicalTime time = document_->time();
    time.changeTempoAt(transport.position(), beats);
    document_->setTime(std::move(time), tr("Change Tempo"));
}

void TransportBar::addChannel()
{
    auto* label = new QLabel(tr("&Channel"));
    label->setMargin(4);
    label->setBuddy(channel_);
    addWidget(label);
    for (int channel = 1; channel <= midi::kChannels; ++channel)
        channel_->addItem(QString::number(channel));
    channel_->setAccessibleName(tr("Channel"));
    channel_->setToolTip(
        tr("The channel of notes that you record or draw. A digit key chooses a channel and "
           "selects its notes; with Ctrl it moves the selected notes to that channel."));
    connect(channel_, &QComboBox::activated, this, [this](int channel) {
        document_->recorder().setChannel(static_cast<unsigned char>(channel));
        emit done();
    });
    addWidget(channel_);
}

void TransportBar::showOptions()
{
    const QSignalBlocker blocker(speed_);
    speed_->setValue(static_cast<int>(std::lround(document_->transport().speed() * 100.0)));
    speedField_->setVisible(document_->reading() == Reading::Musical);
    const int channel = document_->recorder().channel();
    channel_->setCurrentIndex(channel < midi::kChannels ? channel : -1);
    showPosition();
}

void TransportBar::showTempo()
{
    const Transport& transport = document_->transport();
    const double tempo = document_->reading() == Reading::Plain
                             ? kPlainTempo * transport.speed()
                             : transport.time().tempoAt(transport.position());
    const QSignalBlocker blocker(tempo_);
    if (tempo_->value() != std::round(tempo * 10.0) / 10.0)
        tempo_->setValue(tempo);
}

void TransportBar::showPosition()
{
    showTempo();
    const Transport& transport = document_->transport();
    if (const int beats = transport.beatsToCount(); beats > 0) {
        position_->setText(tr("Count-in: %1").arg(beats));
        return;
    }
    // While the position moves, decimals would change too fast to be read.
    const bool moves = transport.mode() != Transport::Mode::Stopped;
    if (document_->reading() == Reading::Plain) {
        position_->setText(tr("%1  ·  step %2")
                               .arg(timeText(transport, locale()))
                               .arg(transport.position(), 0, 'f', moves ? 0 : 1));
        return;
    }
    const Bar bar = document_->time().barAt(transport.position());
    const double beat = std::floor(bar.beatAt(transport.position()) * 100.0) / 100.0;
    position_->setText(
        tr("%1  ·  bar %2, beat %3")
            .arg(timeText(transport, locale()), locale().toString(bar.number),
                 moves ? locale().toString(static_cast<int>(beat)) : locale().toString(beat)));
}

} // namespace velmora
