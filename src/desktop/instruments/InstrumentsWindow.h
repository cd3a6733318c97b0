#pragma once

#include <QWidget>

#include <cstddef>

class QPushButton;
class QTreeView;

namespace velmora {

class AppDelegate;
class InstrumentsModel;

/// Lists the instruments and their memory use. Selecting one makes it the current instrument.
class InstrumentsWindow : public QWidget {
    Q_OBJECT

public:
    explicit InstrumentsWindow(AppDelegate& application, QWidget* parent = nullptr);

    /// Selects the row of the current instrument.
    void showCurrent();

signals:
    /// The user wants to open an instrument.
    void openRequested();

    /// The user wants the instrument at `position` of the list to be the current one.
    void instrumentChosen(std::size_t position);

    /// A request of the user was refused; `message` says why and what to do.
    void refused(const QString& message);

private:
    static constexpr int kNone = -1;

    /// The row of the current instrument; `kNone` if it is not listed.
    int currentRow() const;
    std::size_t selectedRow() const;
    void updateButtons();
    void unload();
    void showReport();

    AppDelegate& application_;
    InstrumentsModel* model_;
    QTreeView* table_;
    QPushButton* unloadButton_;
    QPushButton* reportButton_;
};

} // namespace velmora
