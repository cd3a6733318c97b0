#include "desktop/tuning/ShapeTab.h"

#include "desktop/tuning/FifthsEditor.h"
#include "desktop/tuning/TuningShaper.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scrolling.h"
#include "tuning/TuningDocument.h"
#include "tuning/spelling.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cmath>

namespace velmora {

namespace {

/// How far a slider reaches, in cents, and its steps in a cent.
constexpr int kSliderCents = 60, kStepsPerCent = 10;

constexpr double kFarthestCents = 12000.0;

} // namespace

ShapeTab::ShapeTab(TuningShaper& shaper)
    : shaper_(shaper), state_(new QLabel), tools_(new QWidget), grid_(new QGridLayout),
      fifths_(new FifthsEditor(shaper)), compare_(new QPushButton(tr("Hear the Original"))),
      save_(new QPushButton(tr("Save As…"))), description_(new QLineEdit)
{
    state_->setWordWrap(true);
    auto* notes = new QWidget;
    notes->setLayout(grid_);
    auto* pages = new QTabWidget;
    pages->setAccessibleName(tr("Ways to shape the tuning"));
    pages->addTab(newScrollArea(notes), tr("By Notes"));
    pages->addTab(newScrollArea(fifths_), tr("By Fifths"));
    pages_ = pages;
    auto* column = new QVBoxLayout(this);
    column->addWidget(state_);
    column->addWidget(pages, 1);
    column->addWidget(tools_);
    makeTools();
    connect(&shaper_, &TuningShaper::changed, this, &ShapeTab::showShape);
    showShape();
}

void ShapeTab::makeTools()
{
    auto* undo = new QPushButton(tr("Undo"));
    auto* redo = new QPushButton(tr("Redo"));
    QUndoStack& stack = shaper_.undoStack();
    connect(undo, &QPushButton::clicked, &stack, &QUndoStack::undo);
    connect(redo, &QPushButton::clicked, &stack, &QUndoStack::redo);
    connect(&stack, &QUndoStack::canUndoChanged, undo, &QPushButton::setEnabled);
    connect(&stack, &QUndoStack::canRedoChanged, redo, &QPushButton::setEnabled);
    undo->setEnabled(stack.canUndo());
    redo->setEnabled(stack.canRedo());
    compare_->setCheckable(true);
    compare_->setToolTip(tr("Compare the tuning with what it was before you changed it"));
    connect(compare_, &QPushButton::toggled, &shaper_, &TuningShaper::hearOriginal);
    save_->setToolTip(tr("Save the tuning as a scale file, which is then listed"));
    connect(save_, &QPushButton::clicked, this,
            [this] { emit saveRequested(description_->text()); });
    auto* label = new QLabel(tr("Description:"));
    label->setBuddy(description_);

    auto* grid = new QGridLayout(tools_);
    grid->setContentsMargins({});
    grid->addWidget(undo, 0, 0);
    grid->addWidget(redo, 0, 1);
    grid->addWidget(compare_, 0, 2);
    grid->addWidget(label, 1, 0);
    grid->addWidget(description_, 1, 1);
    grid->addWidget(save_, 1, 2);
}

QString ShapeTab::nameOf(std::size_t degree) const
{
    return shaper_.notes() == 12 ? toneText(rootName(static_cast<int>(degree)))
                                 : QString::number(degree);
}

void ShapeTab::makeRows()
{
    for (const Row& row : rows_) {
        delete row.name;
        delete row.slider;
        delete row.cents;
    }
    rows_.clear();
    const Scale& scale = shaper_.shape()->scale;
    for (std::size_t degree = 1; degree < shaper_.notes(); ++degree) {
        Row row{new QLabel(nameOf(degree)), new QSlider(Qt::Horizontal), new QDoubleSpinBox,
                scale.cents(static_cast<int>(degree))};
        row.slider->setRange(-kSliderCents * kStepsPerCent, kSliderCents * kStepsPerCent);
        row.slider->setAccessibleName(tr("Slider of %1").arg(nameOf(degree)));
        row.slider->setMinimumWidth(80);
        row.cents->setRange(-kFarthestCents, kFarthestCents);
        row.cents->setDecimals(3);
        row.cents->setSuffix(tr(" cents"));
        row.cents->setKeyboardTracking(false);
        row.name->setBuddy(row.cents);
        for (QWidget* field : std::initializer_list<QWidget*>{row.slider, row.cents})
            leaveWheelToScrolling(*field);
        connect(row.slider, &QSlider::sliderPressed, this, [this] { shaper_.begin(); });
        connect(row.slider, &QSlider::valueChanged, this,
                [this, degree, slider = row.slider, middle = row.middle](int steps) {
                    if (!slider->isSliderDown())
                        shaper_.begin();
                    shaper_.setCents(degree, middle + static_cast<double>(steps) / kStepsPerCent);
                });
        connect(row.cents, &QDoubleSpinBox::valueChanged, this, [this, degree](double cents) {
            shaper_.begin();
            shaper_.setCents(degree, cents);
        });
        const int line = static_cast<int>(degree) - 1;
        grid_->addWidget(row.name, line, 0, Qt::AlignRight);
        grid_->addWidget(row.slider, line, 1);
        grid_->addWidget(row.cents, line, 2);
        rows_.push_back(row);
    }
}

void ShapeTab::showShape()
{
    const bool canShape = shaper_.notes() > 1;
    pages_->setVisible(canShape);
    tools_->setVisible(canShape);
    if (!canShape) {
        state_->setText(tr("This tuning finds its pitches while you play, so it has no fixed notes "
                           "to shape. Choose another one."));
        return;
    }
    const TuningDocument* original = shaper_.original();
    state_->setText(original != nullptr
                        ? tr("You are shaping a copy of %1. Save it to keep it.")
                              .arg(QString::fromStdString(original->name()))
                        : tr("Move a note, and you hear it at once in a copy of this tuning. The "
                             "first note stays."));
    compare_->setEnabled(original != nullptr);
    const QSignalBlocker blocker(compare_);
    compare_->setChecked(shaper_.hearsOriginal());
    // The sliders keep their middles while a tuning is shaped.
    const std::string& name = original != nullptr ? original->name() : shaper_.name();
    if (name != rowsOf_ || rows_.size() + 1 != shaper_.notes()) {
        makeRows();
        rowsOf_ = name;
    }
    for (std::size_t degree = 1; degree < shaper_.notes(); ++degree)
        showRow(degree);
    static_cast<QTabWidget*>(pages_)->setTabVisible(1, shaper_.notes() == 12);
    if (shaper_.notes() == 12)
        fifths_->showShape();
}

void ShapeTab::showRow(std::size_t degree)
{
    const Row& row = rows_[degree - 1];
    const double cents = shaper_.shape()->scale.cents(static_cast<int>(degree));
    const QSignalBlocker noSlider(row.slider), noCents(row.cents);
    row.slider->setValue(static_cast<int>(std::lround((cents - row.middle) * kStepsPerCent)));
    row.cents->setValue(cents);
}

} // namespace velmora
