#pragma once

#include "app/DivisionTable.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QGridLayout;

namespace velmora {

class AppDelegate;

/// Asks which MIDI channels and devices play the manuals and the pedals of the current organ.
/// Accepting it changes the organ's table.
class ManualsDialog : public QDialog {
    Q_OBJECT

public:
    ManualsDialog(AppDelegate& application, QWidget* parent);

    /// What the dialog shows, the narrowest rules first: those for a channel of a device, then
    /// those for a device, then the others.
    DivisionTable table() const;

    void accept() override;

private:
    struct Row {
        QComboBox *device, *channel, *division;
        QWidget* remove;
    };

    void show(const DivisionTable& table);
    void addRow(const DivisionRoute& route);
    void removeRow(const QWidget* button);
    QComboBox* makeDevices(const std::string& chosen) const;

    AppDelegate& application_;
    QGridLayout* grid_;
    std::vector<Row> rows_;
};

} // namespace velmora
