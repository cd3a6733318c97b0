#pragma once

#include <QWidget>

#include <string>
#include <utility>
#include <vector>

class QLabel;
class QTableWidget;

namespace velmora {

class AppDelegate;
struct DeviceSettings;
struct KnownDevice;

/// The pane of the preferences with the settings of the MIDI devices: those that are connected and
/// those that are remembered. It follows devices that come and go.
class MidiPane : public QWidget {
    Q_OBJECT

public:
    explicit MidiPane(AppDelegate& application);

    /// Shows the devices.
    void read();

private:
    void addRow(int row, const KnownDevice& device);
    QWidget* makeSwitch(const KnownDevice& device);
    QWidget* makeChannel(const KnownDevice& device);
    QWidget* makeOffset(const KnownDevice& device);

    /// Changes the settings of a device by calling `change(settings)`.
    template <class Change> void edit(const std::string& name, Change change);

    AppDelegate& application_;
    QTableWidget* table_;
    QLabel* hint_;
    std::vector<std::pair<std::string, bool>> shown_; ///< The devices, and which are connected.
};

} // namespace velmora
