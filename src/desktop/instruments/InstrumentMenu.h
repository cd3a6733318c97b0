#pragma once

#include "import/ImportOptions.h"

#include <QPushButton>

#include <cstddef>

namespace velmora {

class AppDelegate;

/// A large button with the name of the current instrument. Its menu lists all instruments, opens
/// further ones, and unloads the current one.
class InstrumentMenu : public QPushButton {
    Q_OBJECT

public:
    explicit InstrumentMenu(AppDelegate& application);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user wants to open an instrument.
    void openRequested();

    /// The user wants the instrument at `position` of the list to be the current one.
    void instrumentChosen(std::size_t position);

    /// The user wants the file of the instrument at `position` to be read with other options.
    void reopenRequested(std::size_t position, const ImportOptions& options);

    /// A request of the user was refused; `message` says why and what to do.
    void refused(const QString& message);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showName();
    void fillMenu();
    void unload(std::size_t position);

    AppDelegate& application_;
    QString name_;
};

} // namespace velmora
