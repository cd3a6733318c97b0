#include "desktop/tuning/TranspositionBar.h"

#include "app/Tunings.h"
#include "desktop/tuning/transposing.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scrolling.h"
#include "tuning/spelling.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>

namespace velmora {

namespace {

/// A step below all pitches; it stands for the one that the tuning has.
constexpr double kOfTuning = Transposition::kLowestA - 1.0;

} // namespace

TranspositionBar::TranspositionBar(Tunings& tunings)
    : tunings_(tunings), root_(new QComboBox), a_(new QDoubleSpinBox)
{
    for (int pitchClass = 0; pitchClass < 12; ++pitchClass)
        root_->addItem(toneText(rootName(pitchClass)));
    root_->setObjectName("root");
    root_->setToolTip(tr("The key on which the tuning stands: on D, D sounds as C does on C"));
    root_->setFocusPolicy(Qt::TabFocus);
    leaveWheelToScrolling(*root_);
    a_->setObjectName("pitchOfA");
    a_->setRange(kOfTuning, Transposition::kHighestA);
    a_->setDecimals(1);
    a_->setSuffix(tr(" Hz"));
    a_->setSpecialValueText(tr("As the tuning has it"));
    a_->setKeyboardTracking(false); // only complete numbers
    a_->setToolTip(tr("The pitch of A above middle C, from 380 to 480 Hz"));
    leaveWheelToScrolling(*a_);
    auto* usual = new QToolButton;
    usual->setText(tr("Usual Pitches"));
    usual->setToolTip(tr("Choose one of the usual pitches of A"));
    usual->setPopupMode(QToolButton::InstantPopup);
    usual->setToolButtonStyle(Qt::ToolButtonIconOnly);
    usual->setArrowType(Qt::DownArrow);
    usual->setFocusPolicy(Qt::TabFocus);
    usual->setMenu(new QMenu(usual));
    connect(usual->menu(), &QMenu::aboutToShow, this, [this, usual] { fillMenu(*usual->menu()); });

    auto* pitch = new QHBoxLayout;
    pitch->addWidget(a_, 1);
    pitch->addWidget(usual);
    auto* form = new QFormLayout(this);
    form->setContentsMargins({});
    form->addRow(tr("Root:"), root_);
    form->addRow(tr("Pitch of A:"), pitch);
    a_->setAccessibleName(tr("Pitch of A"));
    connect(root_, &QComboBox::activated, this, [this](int root) {
        tunings_.setTransposition({root, tunings_.transposition().a});
    });
    connect(a_, &QDoubleSpinBox::valueChanged, this, [this](double hertz) {
        const bool isGiven = hertz >= Transposition::kLowestA;
        setA(tunings_, isGiven ? std::optional(hertz) : std::nullopt);
    });
    connect(&tunings_, &Tunings::changed, this, &TranspositionBar::show);
    show();
}

void TranspositionBar::show()
{
    const QSignalBlocker quiet(a_);
    root_->setCurrentIndex(tunings_.transposition().root);
    a_->setValue(tunings_.transposition().a.value_or(kOfTuning));
}

void TranspositionBar::fillMenu(QMenu& menu)
{
    menu.clear();
    for (const auto& a : usualPitches()) {
        QAction* action = menu.addAction(pitchText(a), this, [this, a] { setA(tunings_, a); });
        action->setCheckable(true);
        action->setChecked(tunings_.transposition().a == a);
    }
}

} // namespace velmora
