#include "desktop/shell/LanguageFields.h"

#include "desktop/widgets/languages.h"
#include "preferences/Preferences.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace velmora {

LanguageFields::LanguageFields(QFormLayout& form)
    : QObject(&form), language_(new QComboBox), noteNames_(new QComboBox),
      restart_(new QLabel(tr("The language changes when you start Velmora again.")))
{
    language_->addItem(tr("As the desktop"), QString());
    for (const QString& code : languages())
        language_->addItem(nativeName(code), code);
    language_->setObjectName("Language");
    language_->setToolTip(tr("The language of all menus and windows"));
    connect(language_, &QComboBox::activated, this, [this] {
        setPrefString("Language", language_->currentData().toString().toStdString());
        restart_->show();
    });

    // In the order of `NoteNaming`.
    noteNames_->addItems({tr("As usual in the language"), tr("International: C D E F G A B"),
                          tr("German: C D E F G A H"), tr("Solfège: Do Re Mi Fa Sol La Si")});
    noteNames_->setObjectName("NoteNames");
    noteNames_->setToolTip(tr("The names of the keys and notes in all windows"));
    connect(noteNames_, &QComboBox::activated, this, [this](int index) {
        setPrefInt("NoteNames", index);
        emit noteNamesChanged();
    });

    restart_->setWordWrap(true);
    restart_->hide();
    form.addRow(tr("L&anguage:"), language_);
    form.addRow(QString(), restart_);
    form.addRow(tr("Not&e names:"), noteNames_);
}

void LanguageFields::read()
{
    const int index = language_->findData(QString::fromStdString(getPrefString("Language")));
    language_->setCurrentIndex(std::max(index, 0));
    noteNames_->setCurrentIndex(getPrefInt("NoteNames"));
}

} // namespace velmora
