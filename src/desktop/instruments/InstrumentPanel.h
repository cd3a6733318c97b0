#pragma once

#include "import/ImportOptions.h"

#include <QWidget>

#include <cstddef>

class QLabel;

namespace velmora {

class AppDelegate;
class ProgramList;
class StopList;

/// The controls of the current instrument: its name with a menu of all instruments, its General
/// MIDI programs or its memory use, its stops, and how MIDI devices play it. It can be docked: it
/// is narrow, and scrolls if it is not high enough.
class InstrumentPanel : public QWidget {
    Q_OBJECT

public:
    explicit InstrumentPanel(AppDelegate& application, QWidget* parent = nullptr);

    QSize sizeHint() const override;

signals:
    /// The user wants to open an instrument.
    void openRequested();

    /// The user wants the instrument at `position` of the list to be the current one.
    void instrumentChosen(std::size_t position);

    /// The user wants the file of the instrument at `position` to be read with other options.
    void reopenRequested(std::size_t position, const ImportOptions& options);

    /// A request of the user was refused; `message` says why and what to do.
    void refused(const QString& message);

private:
    /// Shows the current instrument with its volumes.
    void showInstrument();

    /// Moves the focus to the field that searches the programs or the stops.
    void find();

    AppDelegate& application_;
    ProgramList* programs_;
    QLabel* usage_;
    StopList* stops_;
};

} // namespace velmora
