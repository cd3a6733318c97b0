#pragma once

#include <QWidget>

#include <cstddef>

class QPushButton;
class QTreeView;

namespace velmora {

class AppDelegate;
class InstrumentsModel;

/// The loaded instruments with the memory that they take; the selected one is the current one.
class InstrumentsWindow : public QWidget {
    Q_OBJECT

public:
    explicit InstrumentsWindow(AppDelegate& application, QWidget* parent = nullptr);

    /// Selects the row of the current instrument.
    void showCurrent();

signals:
    /// Another instrument is to be opened.
    void openWanted();

    /// The listed instrument at that position is to be made the current one.
    void selectWanted(std::size_t position);

    /// Something cannot be done now, for the reason told.
    void refused(const QString& why);

private:
    static constexpr int kNone = -1;

    /// The row of the instrument that sounds, `kNone` if it is not listed.
    int currentRow() const;
    std::size_t selected() const;
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
