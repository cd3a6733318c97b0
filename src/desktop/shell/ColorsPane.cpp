#include "desktop/shell/ColorsPane.h"

#include "desktop/widgets/ColorButton.h"
#include "desktop/widgets/scheme.h"
#include "preferences/Color.h"
#include "preferences/Preferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QSignalBlocker>

namespace velmora {

ColorsPane::ColorsPane() : scheme_(new QComboBox), motion_(new QCheckBox(tr("Reduce motion")))
{
    auto* keyboard = new QGroupBox(tr("Keyboard keys"));
    auto* keys = new QFormLayout(keyboard);
    addColor(*keys, tr("&Played:"), "KeyColor",
             tr("Keys that the sequence plays, or waits for in practice"));
    addColor(*keys, tr("&Right:"), "KeyColorCorrect", tr("Keys that you struck correctly"));
    addColor(*keys, tr("&Held:"), "KeyColorSustain", tr("Keys that you keep holding"));
    addColor(*keys, tr("&Wrong:"), "KeyColorWrong", tr("Keys that you struck by mistake"));
    auto* roll = new QGroupBox(tr("Piano roll notes"));
    auto* notes = new QFormLayout(roll);
    addColor(*notes, tr("&At rest:"), "NoteColor", tr("Notes that are not sounding"));
    addColor(*notes, tr("&Sounding:"), "NoteColorPlaying", tr("Notes at the play position"));

    scheme_->setObjectName("Scheme");
    scheme_->addItem(tr("Calm"), "Calm");
    scheme_->addItem(tr("Classic"), "Classic");
    scheme_->setToolTip(tr("Calm: soft colours that suit the theme of the desktop. Classic: bright "
                           "colours on white and black"));
    connect(scheme_, &QComboBox::activated, this, [this] {
        setPrefString("Scheme", scheme_->currentData().toString().toStdString());
        read();
        emit changed();
    });
    auto* scheme = new QFormLayout;
    scheme->addRow(tr("Sch&eme:"), scheme_);
    motion_->setObjectName("ReduceMotion");
    motion_->setToolTip(tr("Scroll the piano roll at once instead of gliding"));
    connect(motion_, &QCheckBox::toggled, this,
            [](bool isOn) { setPrefBool("ReduceMotion", isOn); });
    scheme->addRow(QString(), motion_);

    auto* standard = new QPushButton(tr("Reset to &Defaults"));
    standard->setObjectName("ResetColors");
    standard->setToolTip(tr("Use the colours of the scheme again"));
    connect(standard, &QPushButton::clicked, this, &ColorsPane::reset);

    auto* layout = new QGridLayout(this);
    layout->addLayout(scheme, 0, 0, 1, 2);
    layout->addWidget(keyboard, 1, 0);
    layout->addWidget(roll, 1, 1);
    layout->addWidget(standard, 2, 1, Qt::AlignRight);
    layout->setRowStretch(3, 1);
}

void ColorsPane::addColor(QFormLayout& form, const QString& label, const char* key,
                          const QString& help)
{
    auto* button = new ColorButton(help);
    button->setObjectName(key);
    button->setToolTip(help);
    form.addRow(label, button);
    connect(button, &ColorButton::chosen, this, [this, key](const QColor& color) {
        setPrefColor(key, Color(color));
        read();
        emit changed();
    });
}

void ColorsPane::reset()
{
    for (const auto* button : findChildren<ColorButton*>())
        resetPref(button->objectName().toStdString());
    read();
    emit changed();
}

void ColorsPane::read() const
{
    scheme_->setCurrentIndex(static_cast<int>(preferredScheme()));
    const QSignalBlocker blocker(motion_);
    motion_->setChecked(getPrefBool("ReduceMotion"));
    for (auto* button : findChildren<ColorButton*>()) {
        const QByteArray key = button->objectName().toLatin1();
        button->setColor(schemeColor(key.constData(), palette()).toQColor());
    }
}

} // namespace velmora
