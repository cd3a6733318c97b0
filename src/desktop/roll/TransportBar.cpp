#include "desktop/roll/TransportBar.h"

#include "desktop/roll/SequenceActions.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/nameParts.h"
#include "midi/messages.h"
#include "sequencer/SequenceDocument.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace velmora {

namespace {

constexpr int kMinTempo = 20;
constexpr int kMaxTempo = 400;
constexpr int kFirstTempo = 120; // that of a new piece

/// Returns the time of the position in minutes, seconds and tenths, such as "1:05.3".
QString timeText(const Transport& transport)
{
    const double seconds = std::max(0.0, transport.position() / transport.stepsPerSecond());
    const auto tenths = static_cast<qlonglong>(seconds * 10);
    return QString("%1:%2.%3")
        .arg(tenths / 600)
        .arg(tenths / 10 % 60, 2, 10, QChar('0'))
        .arg(tenths % 10);
}

} // namespace

TransportBar::TransportBar(SequenceActions& actions, AppDelegate& application)
    : application_(application), tempo_(new QSpinBox), channel_(new QComboBox),
      position_(new QLabel)
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
    addSeparator();
    addTempo();
    addChannel();
    addSeparator();
    position_->setToolTip(tr("The position in minutes and seconds at this tempo, and in steps"));
    position_->setMargin(6);
    addWidget(position_);
    setDocument(nullptr);
}

void TransportBar::setDocument(SequenceDocument* document)
{
    if (document_ != nullptr) {
        document_->transport().disconnect(this);
        document_->recorder().disconnect(this);
    }
    document_ = document;
    for (QWidget* field : std::initializer_list<QWidget*>{tempo_, channel_, position_})
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

void TransportBar::addTempo()
{
    auto* label = new QLabel(tr("Te&mpo"));
    label->setMargin(4);
    label->setBuddy(tempo_);
    addWidget(label);
    tempo_->setRange(kMinTempo, kMaxTempo);
    tempo_->setValue(kFirstTempo);
    tempo_->setSuffix(tr(" bpm"));
    tempo_->setKeyboardTracking(false);
    tempo_->setAccessibleName(tr("Tempo"));
    tempo_->setToolTip(tr("The tempo of playing and recording in beats per minute (Alt+M)"));
    connect(tempo_, &QSpinBox::valueChanged, this, [this](int tempo) {
        if (document_ != nullptr) // what was typed is reported when the last piece closes, too
            document_->transport().setTempo(tempo);
    });
    connect(tempo_, &QSpinBox::editingFinished, this, [this] {
        if (tempo_->hasFocus()) // otherwise the user has already moved the focus
            emit done();
    });
    addWidget(tempo_);
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
    if (const auto tempo = static_cast<int>(std::lround(document_->transport().tempo()));
        tempo != tempo_->value()) {
        const QSignalBlocker blocker(tempo_);
        tempo_->setValue(tempo);
    }
    const int channel = document_->recorder().channel();
    channel_->setCurrentIndex(channel < midi::kChannels ? channel : -1);
    showPosition();
}

void TransportBar::showPosition()
{
    const Transport& transport = document_->transport();
    // While the position moves, decimals would change too fast to be read.
    const int decimals = transport.mode() == Transport::Mode::Stopped ? 1 : 0;
    position_->setText(
        tr("%1  ·  step %2").arg(timeText(transport)).arg(transport.position(), 0, 'f', decimals));
}

} // namespace velmora
