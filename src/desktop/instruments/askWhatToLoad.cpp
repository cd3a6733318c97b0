#include "desktop/instruments/askWhatToLoad.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace velmora {

namespace {

QString buttonText(const ImportOptions& options)
{
    if (options.stops == StopsToLoad::Drawn)
        return QObject::tr("Load Only the D&rawn Stops");
    if (options.stops == StopsToLoad::Fitting)
        return QObject::tr("Load as Many Stops as &Fit");
    if (options.to16Bit && options.toMono)
        return QObject::tr("Load with 16 &Bits in Mono");
    return options.to16Bit ? QObject::tr("Load with 16 &Bits") : QObject::tr("Load in &Mono");
}

} // namespace

std::optional<ImportOptions> askWhatToLoad(const QString& message,
                                           const std::vector<ImportOptions>& fitting)
{
    QMessageBox box(QMessageBox::Warning, QObject::tr("Velmora"), message, QMessageBox::Cancel,
                    QApplication::activeWindow());
    std::vector<QAbstractButton*> buttons;
    buttons.reserve(fitting.size());
    for (const ImportOptions& options : fitting)
        buttons.push_back(box.addButton(buttonText(options), QMessageBox::AcceptRole));
    box.exec();
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (box.clickedButton() == buttons[i])
            return fitting[i];
    return std::nullopt;
}

} // namespace velmora
