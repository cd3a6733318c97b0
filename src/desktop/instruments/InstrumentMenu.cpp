#include "desktop/instruments/InstrumentMenu.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/importChoices.h"
#include "desktop/instruments/importReport.h"
#include "desktop/instruments/unloadInstrument.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/messages.h"

#include <QMenu>

namespace velmora {

namespace {

constexpr double kNameScale = 1.4; ///< The size of the name relative to other texts.
constexpr int kLeastLetters = 8;

} // namespace

InstrumentMenu::InstrumentMenu(AppDelegate& application) : application_(application)
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kNameScale);
    setFont(large);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMenu(new QMenu(this));
    connect(menu(), &QMenu::aboutToShow, this, &InstrumentMenu::fillMenu);
    connect(&application_, &AppDelegate::instrumentChanged, this, &InstrumentMenu::showName);
    showName();
}

QSize InstrumentMenu::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kLeastLetters, QPushButton::sizeHint().height()};
}

QSize InstrumentMenu::minimumSizeHint() const
{
    return sizeHint();
}

void InstrumentMenu::showName()
{
    name_ = translatedTitle(application_.instrumentName());
    setAccessibleName(tr("Instrument: %1").arg(name_));
    setToolTip(tr("%1\nChoose another instrument, open or unload one").arg(name_));
    // Room for the arrow of the menu and the borders.
    const int room = width() - 2 * fontMetrics().height();
    setText(fontMetrics().elidedText(name_, Qt::ElideRight, room).replace("&", "&&"));
}

void InstrumentMenu::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    showName();
}

void InstrumentMenu::fillMenu()
{
    QMenu& menu = *this->menu();
    menu.clear();
    const InstrumentDocument* current = nullptr;
    std::size_t currentPosition = 0;
    for (std::size_t position = 0; const auto& document : application_.instruments()) {
        QAction* action =
            menu.addAction(translatedTitle(document->title()).replace("&", "&&"), this,
                           [this, position] { emit instrumentChosen(position); });
        action->setCheckable(true);
        if (application_.isCurrent(*document)) {
            action->setChecked(true);
            current = document.get();
            currentPosition = position;
        }
        ++position;
    }
    menu.addSeparator();
    menu.addAction(velmora::icon("open"), tr("&Open Instrument…"), this,
                   &InstrumentMenu::openRequested);
    const bool isFromFile = current != nullptr && current->isFromFile();
    if (isFromFile) {
        menu.addSeparator();
        addImportChoices(menu, *current, [this, currentPosition](const ImportOptions& options) {
            emit reopenRequested(currentPosition, options);
        });
        menu.addSeparator();
    }
    const QString name = QString(name_).replace("&", "&&");
    menu.addAction(velmora::icon("unload"), tr("&Unload %1").arg(name), this,
                   [this, currentPosition] { unload(currentPosition); })
        ->setEnabled(isFromFile);
    menu.addAction(tr("Import &Report of %1…").arg(name), this,
                   [this, current] { showImportReport(*this, *current); })
        ->setEnabled(isFromFile);
}

void InstrumentMenu::unload(std::size_t position)
{
    const QString problem = unloadInstrument(application_, position);
    if (!problem.isEmpty())
        emit refused(problem);
}

} // namespace velmora
