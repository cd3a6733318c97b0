#include "desktop/tuning/GlideBar.h"

#include "app/PlayingOptions.h"
#include "desktop/widgets/scrolling.h"
#include "preferences/Preferences.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace velmora {

GlideBar::GlideBar(PlayingOptions& options)
    : options_(options), time_(new QSpinBox), newOnly_(new QCheckBox(tr("Only new notes")))
{
    const PrefRange range = prefRange("GlideTime");
    time_->setObjectName("GlideTime");
    time_->setRange(range.least, range.greatest);
    time_->setSingleStep(10);
    time_->setSuffix(tr(" ms"));
    time_->setKeyboardTracking(false); // only complete numbers
    time_->setToolTip(tr("How long notes that sound take to reach their new pitch when the tuning "
                         "changes; with 0 they jump"));
    leaveWheelToScrolling(*time_);
    newOnly_->setObjectName("GlideNewOnly");
    newOnly_->setToolTip(tr("Notes that sound keep their pitch until they are struck again"));
    newOnly_->setFocusPolicy(Qt::TabFocus);
    auto* form = new QFormLayout(this);
    form->setContentsMargins({});
    form->addRow(tr("Glide:"), time_);
    form->addRow(QString(), newOnly_);
    connect(time_, &QSpinBox::valueChanged, this, [this](int milliseconds) {
        setPrefInt("GlideTime", milliseconds);
        options_.read();
    });
    connect(newOnly_, &QCheckBox::toggled, this, [this](bool isOn) {
        setPrefBool("GlideSounding", !isOn);
        options_.read();
    });
    connect(&options_, &PlayingOptions::changed, this, &GlideBar::show);
    show();
}

void GlideBar::show()
{
    const QSignalBlocker time(time_), newOnly(newOnly_);
    time_->setValue(getPrefInt("GlideTime"));
    newOnly_->setChecked(!getPrefBool("GlideSounding"));
    setEnabled(!options_.settings().isPlain);
    time_->setEnabled(!newOnly_->isChecked());
}

} // namespace velmora
