#pragma once

#include "app/OrganSettings.h"

#include <QObject>

#include <array>
#include <memory>

class QAction;
class QMenu;

namespace velmora {

class AppDelegate;
class Commands;

/// The commands of the console. They are enabled while the current instrument has one.
class ConsoleActions : public QObject {
    Q_OBJECT

public:
    /// Both arguments must outlive the object.
    ConsoleActions(AppDelegate& application, Commands& commands);
    ~ConsoleActions() override;

    /// While it is checked, the next registration button keeps what is drawn.
    QAction* const set;

    /// Checked while what they keep is drawn.
    const std::array<QAction*, kRegistrationButtons> registrations;

    QAction *const cancel, *const tutti;
    QAction* const manuals; ///< Asks what plays the manuals.

    /// The registrations with names, and the commands for them.
    QMenu& named() { return *named_; }

    void addTo(QMenu& menu);

signals:
    /// The commands for a console are of use now, or no longer.
    void enabledChanged(bool isEnabled);

private:
    std::array<QAction*, kRegistrationButtons> makeRegistrations(Commands& commands) const;
    void press(std::size_t button);
    void show();
    void fillNamed();
    void keepUnderName();
    void rename(std::size_t position);

    AppDelegate& application_;
    std::unique_ptr<QMenu> named_;
};

} // namespace velmora
