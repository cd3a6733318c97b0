#include "desktop/instruments/importChoices.h"

#include "import/InstrumentDocument.h"

#include <QActionGroup>
#include <QMenu>

namespace velmora {

void addImportChoices(QMenu& menu, const InstrumentDocument& document,
                      const std::function<void(const ImportOptions&)>& reopen)
{
    const ImportOptions options = document.options();
    if (document.choices().size() > 1) {
        QMenu* choices = menu.addMenu(QObject::tr("Instrument in the &File"));
        auto* group = new QActionGroup(choices);
        for (std::size_t i = 0; i < document.choices().size(); ++i) {
            ImportOptions changed = options;
            changed.choice = i;
            QAction* action =
                choices->addAction(QString::fromStdString(document.choices()[i]).replace("&", "&&"),
                                   choices, [reopen, changed] { reopen(changed); });
            action->setCheckable(true);
            action->setChecked(i == options.choice);
            group->addAction(action);
        }
    }
    const auto add = [&](const QString& text, const QString& tip, bool ImportOptions::*option) {
        ImportOptions changed = options;
        changed.*option = !(options.*option);
        QAction* action = menu.addAction(text, &menu, [reopen, changed] { reopen(changed); });
        action->setToolTip(tip);
        action->setCheckable(true);
        action->setChecked(options.*option);
    };
    const bool isMusical = options.reading == Reading::Musical;
    if (isMusical && document.format() == InstrumentFormat::SoundFont)
        add(QObject::tr("Open as S&tops"),
            QObject::tr("Lay out the instruments of the bank as stops with volumes of their own, "
                        "instead of its presets"),
            &ImportOptions::asStops);
    ImportOptions other = options;
    other.reading = isMusical ? Reading::Plain : Reading::Musical;
    QAction* plain =
        menu.addAction(QObject::tr("&Plain Reading"), &menu, [reopen, other] { reopen(other); });
    plain->setToolTip(QObject::tr("One sample for each key, as the file lists them"));
    plain->setCheckable(true);
    plain->setChecked(!isMusical);
    add(QObject::tr("Load with 16 &Bits"), QObject::tr("Samples with more bits take less memory"),
        &ImportOptions::to16Bit);
    add(QObject::tr("Load in &Mono"), QObject::tr("Stereo samples take half the memory"),
        &ImportOptions::toMono);
    const bool isOrgan = isMusical && (document.format() == InstrumentFormat::HauptwerkXml ||
                                       document.format() == InstrumentFormat::Hauptwerk1 ||
                                       document.format() == InstrumentFormat::OrganPackage);
    const auto addStops = [&](const QString& text, StopsToLoad stops) {
        ImportOptions changed = options;
        changed.stops = options.stops == stops ? StopsToLoad::All : stops;
        QAction* action = menu.addAction(text, &menu, [reopen, changed] { reopen(changed); });
        action->setCheckable(true);
        action->setChecked(options.stops == stops);
    };
    if (isOrgan) {
        addStops(QObject::tr("Load Only the D&rawn Stops"), StopsToLoad::Drawn);
        addStops(QObject::tr("Load as Many Stops as &Fit"), StopsToLoad::Fitting);
    }
    menu.setToolTipsVisible(true);
}

} // namespace velmora
