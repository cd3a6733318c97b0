#include "desktop/tuning/FifthsEditor.h"

#include "desktop/tuning/TuningShaper.h"
#include "desktop/tuning/intervalText.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scrolling.h"
#include "tuning/spelling.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace velmora {

namespace {

using CommaParts = HistoricalTemperament::Fifths;

constexpr int kMostCommaParts = 24;
constexpr double kSameCents = 0.05;
constexpr int kGSharp = 8; ///< The place of the fifth that is usually the wolf.

/// Returns the name of a fifth by the place of its lower note, from C to F.
QString fifthText(int place)
{
    constexpr int kSharps = 9; // the circle begins with C and goes on with flats after G sharp
    const auto name = [](int step) {
        return toneText(placeName(step >= kSharps ? step - 12 : step));
    };
    return FifthsEditor::tr("%1–%2").arg(name(place), name((place + 1) % 12));
}

} // namespace

FifthsEditor::FifthsEditor(TuningShaper& shaper)
    : shaper_(shaper), comma_(new QComboBox), rest_(new QComboBox), parts_(new QSpinBox),
      state_(new QLabel)
{
    comma_->addItems({tr("syntonic (21.5 cents)"), tr("Pythagorean (23.5 cents)")});
    parts_->setRange(1, kMostCommaParts);
    parts_->setPrefix("1/");
    parts_->setSuffix(tr(" comma"));
    state_->setWordWrap(true);
    makeFields();
    for (QSpinBox* field : narrowed_)
        connect(field, &QSpinBox::valueChanged, this, &FifthsEditor::apply);
    connect(parts_, &QSpinBox::valueChanged, this, [this] {
        showParts();
        apply();
    });
    showParts();
    connect(comma_, &QComboBox::currentIndexChanged, this, &FifthsEditor::apply);
    connect(rest_, &QComboBox::currentIndexChanged, this, &FifthsEditor::showShape);
}

void FifthsEditor::makeFields()
{
    const auto newLabel = [](const QString& text, QWidget* field) {
        auto* label = new QLabel(text);
        label->setBuddy(field);
        leaveWheelToScrolling(*field);
        return label;
    };
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->addWidget(newLabel(tr("Unit:"), parts_), 0, 0);
    grid->addWidget(parts_, 0, 1);
    grid->addWidget(comma_, 0, 2, 1, 2);
    comma_->setAccessibleName(tr("Comma"));
    leaveWheelToScrolling(*comma_);
    for (int i = 0; i < 12; ++i) {
        auto* field = new QSpinBox;
        field->setRange(-kMostCommaParts, kMostCommaParts);
        field->setToolTip(tr("By which part of the comma this fifth is narrower than a pure one"));
        narrowed_[static_cast<std::size_t>(i)] = field;
        const int row = 1 + i % 6, column = i / 6 * 2;
        grid->addWidget(newLabel(fifthText(i), field), row, column, Qt::AlignRight);
        grid->addWidget(field, row, column + 1);
        rest_->addItem(fifthText(i));
    }
    rest_->setCurrentIndex(kGSharp);
    grid->addWidget(newLabel(tr("Takes the rest:"), rest_), 7, 0, 1, 2, Qt::AlignRight);
    grid->addWidget(rest_, 7, 2, 1, 2);
    grid->addWidget(state_, 8, 0, 1, 4);
    grid->setRowStretch(9, 1);
    grid->setColumnStretch(3, 1);
}

void FifthsEditor::showParts()
{
    for (QSpinBox* field : narrowed_)
        field->setSuffix(QString("/%1").arg(parts_->value()));
}

HistoricalTemperament::Fifths FifthsEditor::fifths() const
{
    CommaParts fifths{comma_->currentIndex() == 0 ? CommaParts::Comma::Syntonic
                                                  : CommaParts::Comma::Pythagorean,
                      parts_->value(),
                      {}};
    for (std::size_t i = 0; i < narrowed_.size(); ++i)
        fifths.narrowed[i] = static_cast<int>(i) == rest_->currentIndex() ? CommaParts::kRest
                                                                          : narrowed_[i]->value();
    return fifths;
}

void FifthsEditor::apply()
{
    shaper_.begin();
    shaper_.setPitches(scaleOf(fifths()).pitches);
}

void FifthsEditor::showShape()
{
    if (shaper_.notes() != narrowed_.size())
        return;
    const Scale& scale = shaper_.shape()->scale;
    // What the fields say already need not be told in fewer parts.
    const Scale own = scaleOf(fifths());
    bool isShown = true;
    for (int degree = 1; degree < 12; ++degree)
        isShown = isShown && std::abs(own.cents(degree) - scale.cents(degree)) < kSameCents;
    isShown = isShown || findFifths(scale);
    const auto rest = static_cast<std::size_t>(rest_->currentIndex());
    for (std::size_t i = 0; i < narrowed_.size(); ++i)
        narrowed_[i]->setEnabled(i != rest);
    if (!isShown) {
        state_->setText(tr("The fifths of this tuning are no parts of a comma. A change here "
                           "replaces them all."));
        return;
    }
    const int low = 7 * static_cast<int>(rest) % 12;
    const double pure = 1200.0 * std::log2(1.5);
    state_->setText(tr("The fifth %1 differs from a pure one by %2 cents.")
                        .arg(fifthText(static_cast<int>(rest)),
                             centsText(scale.cents(low + 7) - scale.cents(low) - pure)));
}

bool FifthsEditor::findFifths(const Scale& scale)
{
    const auto usual = static_cast<std::size_t>(rest_->currentIndex());
    for (std::size_t step = 0; step < narrowed_.size(); ++step) {
        const std::size_t rest = (usual + step) % narrowed_.size();
        const auto found = fifthsOf(scale, rest);
        if (!found)
            continue;
        const QSignalBlocker noComma(comma_), noParts(parts_), noRest(rest_);
        comma_->setCurrentIndex(found->comma == CommaParts::Comma::Syntonic ? 0 : 1);
        parts_->setValue(found->parts);
        showParts();
        rest_->setCurrentIndex(static_cast<int>(rest));
        for (std::size_t i = 0; i < narrowed_.size(); ++i) {
            const QSignalBlocker blocker(narrowed_[i]);
            narrowed_[i]->setValue(i == rest ? 0 : found->narrowed[i]);
        }
        return true;
    }
    return false;
}

} // namespace velmora
