#include "desktop/roll/FitDialog.h"

#include "desktop/widgets/scheme.h"
#include "sequencer/SequenceDocument.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kFewestBeats = 2, kMostBeats = 12;

constexpr double kPixelsPerSecond = 60.0;
constexpr int kPictureHeight = 180, kPictureMargin = 8;

} // namespace

/// The notes in time from left to right, with the lines of bars and beats over them.
class FitDialog::Picture : public QWidget {
public:
    Picture(const SequenceDocument& document, const FoundBeats& beats)
        : document_(document), beats_(beats)
    {
        const auto& notes = document.sequence().notes();
        const auto [lowest, highest] = std::ranges::minmax_element(notes, {}, &Note::key);
        lowest_ = static_cast<int>(lowest->key);
        keys_ = static_cast<int>(highest->key) - lowest_ + 1;
        setAccessibleName(FitDialog::tr("The notes with the bars and beats that were found"));
        setMinimumHeight(kPictureHeight / 2);
    }

    QSize sizeHint() const override
    {
        return {static_cast<int>(xOf(beats_.times.back())) + kPictureMargin, kPictureHeight};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        const QColor color = accentOn({palette().color(QPalette::Base)}, palette());
        const double row = (height() - 2.0 * kPictureMargin) / keys_;
        const MusicalTime& time = document_.time();
        for (const Note& note : document_.sequence().notes()) {
            const double x = xOf(time.secondsAt(note.start));
            const double end = xOf(time.secondsAt(note.start + note.length));
            const double y =
                height() - kPictureMargin - row * (static_cast<int>(note.key) - lowest_ + 1);
            painter.fillRect(QRectF(x, y, std::max(end - x, 2.0), std::max(row - 1.0, 2.0)), color);
        }
        for (std::size_t i = 0; i < beats_.times.size(); ++i) {
            const int inBar = (static_cast<int>(i) - beats_.firstBar) % beats_.beatsPerBar;
            painter.setPen(inBar == 0 ? QPen(palette().color(QPalette::Text), 2.0)
                                      : QPen(palette().color(QPalette::Mid), 1.0));
            const double x = xOf(beats_.times[i]);
            painter.drawLine(QPointF(x, 0.0), QPointF(x, height()));
        }
    }

private:
    double xOf(double seconds) const
    {
        return kPictureMargin + (seconds - beats_.times.front()) * kPixelsPerSecond;
    }

    const SequenceDocument& document_;
    const FoundBeats& beats_;
    int lowest_ = 0, keys_ = 1;
};

FitDialog::FitDialog(SequenceDocument& document, const FoundBeats& beats, QWidget* parent)
    : QDialog(parent), document_(document), beats_(beats), picture_(new Picture(document, beats_)),
      tempo_(new QLabel), half_(new QPushButton(tr("&Half as Fast"))),
      twice_(new QPushButton(tr("&Twice as Fast"))), count_(new QSpinBox), first_(new QSpinBox)
{
    setWindowTitle(tr("Fit to Grid"));
    auto* explanation = new QLabel(tr("These bars and beats were found. Correct them if they are "
                                      "not yours; the piece is moved to them only then."));
    explanation->setWordWrap(true);
    auto* area = new QScrollArea;
    area->setWidget(picture_);
    area->setWidgetResizable(true);
    area->setAccessibleName(picture_->accessibleName());
    area->setMinimumSize(480, kPictureHeight / 2 + 30);
    auto* form = new QFormLayout;
    addFields(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &FitDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FitDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(explanation);
    column->addWidget(area, 1);
    column->addLayout(form);
    column->addWidget(buttons);
    showBeats();
    resize(sizeHint()); // on a low screen it would get less than the wrapped text takes
}

void FitDialog::addFields(QFormLayout& form)
{
    auto* tempo = new QHBoxLayout;
    connect(half_, &QPushButton::clicked, this, [this] { scaleTempo(0.5); });
    connect(twice_, &QPushButton::clicked, this, [this] { scaleTempo(2.0); });
    tempo->addWidget(tempo_, 1);
    tempo->addWidget(half_);
    tempo->addWidget(twice_);
    form.addRow(tr("Tempo:"), tempo);
    count_->setRange(kFewestBeats, kMostBeats);
    count_->setValue(beats_.beatsPerBar);
    form.addRow(tr("&Beats in a bar:"), count_);
    first_->setRange(1, beats_.beatsPerBar);
    first_->setValue(beats_.firstBar + 1);
    form.addRow(tr("&First bar begins at beat:"), first_);
    connect(count_, &QSpinBox::valueChanged, this, [this](int count) {
        beats_.beatsPerBar = count;
        first_->setMaximum(count);
        picture_->update();
    });
    connect(first_, &QSpinBox::valueChanged, this, [this](int beat) {
        beats_.firstBar = beat - 1;
        picture_->update();
    });
}

void FitDialog::scaleTempo(double factor)
{
    const auto found =
        findBeats(document_.sequence().notes(), document_.time(), beats_.tempo() * factor);
    if (!found)
        return;
    beats_ = *found;
    count_->setValue(beats_.beatsPerBar);
    first_->setValue(found->firstBar + 1);
    showBeats();
}

void FitDialog::showBeats()
{
    tempo_->setText(tr("%1 beats per minute").arg(QLocale().toString(beats_.tempo(), 'f', 1)));
    half_->setEnabled(beats_.tempo() / 2 >= FoundBeats::kSlowest);
    twice_->setEnabled(beats_.tempo() * 2 <= FoundBeats::kFastest);
    picture_->updateGeometry();
    picture_->update();
}

void FitDialog::accept()
{
    fitToGrid(document_, beats_, tr("Fit to Grid"));
    QDialog::accept();
}

void askToFit(SequenceDocument& document, QWidget* parent)
{
    const auto beats = findBeats(document.sequence().notes(), document.time());
    if (!beats) {
        QMessageBox::information(
            parent, FitDialog::tr("Fit to Grid"),
            FitDialog::tr(
                "Velmora finds a tempo in eight notes or more, over four hours at most."));
        return;
    }
    FitDialog(document, *beats, parent).exec();
}

} // namespace velmora
