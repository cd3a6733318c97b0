#include "desktop/console/ConsoleActions.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/Commands.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>

namespace velmora {

namespace {

QString group()
{
    return ConsoleActions::tr("Console");
}

QString escapedName(const std::string& name)
{
    return QString::fromStdString(name).replace("&", "&&");
}

} // namespace

ConsoleActions::ConsoleActions(AppDelegate& application, Commands& commands)
    : set(commands.add("console.set", group(),
                       {tr("&Set"), tr("Keep what is drawn under the registration button that is "
                                       "pressed next")},
                       {Qt::CTRL | Qt::Key_R})),
      registrations(makeRegistrations(commands)),
      cancel(commands.add("console.cancel", group(),
                          {tr("&Cancel"), tr("Push in every stop and coupler")})),
      tutti(commands.add("console.tutti", group(),
                         {tr("&Tutti"), tr("Draw everything; the next press returns to what was "
                                           "drawn before")})),
      manuals(commands.add("console.manuals", group(),
                           {tr("&Manuals…"), tr("Choose which MIDI channels and devices play the "
                                                "manuals and the pedals")})),
      application_(application), named_(std::make_unique<QMenu>(tr("&Registrations")))
{
    OrganConsole& organ = application_.organ();
    set->setCheckable(true);
    tutti->setCheckable(true);
    for (std::size_t button = 0; button < registrations.size(); ++button) {
        registrations[button]->setCheckable(true);
        connect(registrations[button], &QAction::triggered, this,
                [this, button] { press(button); });
    }
    connect(set, &QAction::toggled, this, &ConsoleActions::show);
    connect(cancel, &QAction::triggered, &organ, &OrganConsole::cancel);
    connect(tutti, &QAction::triggered, &organ, &OrganConsole::setTutti);
    connect(named_.get(), &QMenu::aboutToShow, this, &ConsoleActions::fillNamed);
    connect(&organ, &OrganConsole::changed, this, [this] {
        set->setChecked(false);
        show();
        emit enabledChanged(application_.organ().definition() != nullptr);
    });
    connect(&organ, &OrganConsole::moved, this, &ConsoleActions::show);
    connect(&organ, &OrganConsole::registrationsChanged, this, &ConsoleActions::show);
    show();
}

ConsoleActions::~ConsoleActions() = default;

std::array<QAction*, kRegistrationButtons>
ConsoleActions::makeRegistrations(Commands& commands) const
{
    std::array<QAction*, kRegistrationButtons> actions{};
    for (int number = 1; QAction * &action : actions) {
        const auto key = static_cast<Qt::Key>(Qt::Key_0 + number % 10);
        action = commands.add(qPrintable(QString("console.registration%1").arg(number)), group(),
                              {tr("Registration %1").arg(number), {}},
                              {QKeySequence(Qt::CTRL | Qt::ALT | key)});
        action->setIconText(QString::number(number++));
    }
    return actions;
}

void ConsoleActions::addTo(QMenu& menu)
{
    menu.addActions({cancel, tutti});
    menu.addSeparator();
    menu.addAction(set);
    for (QAction* registration : registrations)
        menu.addAction(registration);
    menu.addMenu(named_.get());
    menu.addSeparator();
    menu.addAction(manuals);
}

void ConsoleActions::press(std::size_t button)
{
    if (set->isChecked()) {
        application_.organ().keepUnderButton(button);
        set->setChecked(false);
    } else {
        application_.organ().recall(button);
    }
    show();
}

void ConsoleActions::show()
{
    OrganConsole& organ = application_.organ();
    const bool hasConsole = organ.definition() != nullptr;
    const Registration drawn = organ.state().drawn;
    for (QAction* action : {set, cancel, tutti, manuals})
        action->setEnabled(hasConsole);
    named_->setEnabled(hasConsole);
    tutti->setChecked(hasConsole && organ.isTutti());
    for (std::size_t button = 0; button < registrations.size(); ++button) {
        const auto& kept = organ.settings().buttons[button];
        registrations[button]->setEnabled(hasConsole && (set->isChecked() || kept.has_value()));
        registrations[button]->setChecked(hasConsole && kept == drawn);
    }
}

void ConsoleActions::fillNamed()
{
    OrganConsole& organ = application_.organ();
    const auto& kept = organ.settings().named;
    named_->clear();
    QMenu* renaming = nullptr;
    QMenu* removing = nullptr;
    for (std::size_t i = 0; i < kept.size(); ++i)
        named_->addAction(escapedName(kept[i].name), this,
                          [&organ, i] { organ.recall(kRegistrationButtons + i); });
    named_->addSeparator();
    named_->addAction(tr("&Keep as…"), this, &ConsoleActions::keepUnderName);
    if (kept.empty())
        return;
    renaming = named_->addMenu(tr("Re&name"));
    removing = named_->addMenu(tr("&Remove"));
    for (std::size_t i = 0; i < kept.size(); ++i) {
        renaming->addAction(escapedName(kept[i].name), this, [this, i] { rename(i); });
        removing->addAction(escapedName(kept[i].name), this, [&organ, i] { organ.remove(i); });
    }
}

void ConsoleActions::keepUnderName()
{
    const QString name =
        QInputDialog::getText(QApplication::activeWindow(), tr("Keep Registration"),
                              tr("Name of the registration:"))
            .trimmed();
    if (!name.isEmpty())
        application_.organ().keepUnderName(name.toStdString());
}

void ConsoleActions::rename(std::size_t position)
{
    OrganConsole& organ = application_.organ();
    const QString before = QString::fromStdString(organ.settings().named.at(position).name);
    const QString name =
        QInputDialog::getText(QApplication::activeWindow(), tr("Rename Registration"),
                              tr("New name of “%1”:").arg(before), QLineEdit::Normal, before)
            .trimmed();
    if (!name.isEmpty() && !organ.rename(position, name.toStdString()))
        QMessageBox::warning(QApplication::activeWindow(), tr("Rename Registration"),
                             tr("There is another registration with the name “%1”.").arg(name));
}

} // namespace velmora
