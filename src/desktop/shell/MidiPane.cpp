#include "desktop/shell/MidiPane.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/deviceText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kPaneWidth = 520;
constexpr int kPaneHeight = 120;

enum Column { kNameColumn, kOnColumn, kChannelColumn, kKeysColumn, kColumns };

/// Names a widget for tests and for screen readers.
void setNames(QWidget& widget, const char* setting, const std::string& device)
{
    widget.setObjectName(QString("%1 %2").arg(setting, QString::fromStdString(device)));
    widget.setAccessibleName(MidiPane::tr("%1 of %2").arg(widget.toolTip(), deviceText(device)));
}

} // namespace

MidiPane::MidiPane(AppDelegate& application)
    : application_(application), table_(new QTableWidget(0, kColumns)),
      hint_(new QLabel(tr("Connect a MIDI device, and it appears here.")))
{
    table_->setHorizontalHeaderLabels({tr("Device"), tr("On"), tr("Channel"), tr("Keys")});
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setFocusPolicy(Qt::NoFocus); // the settings in it have the focus
    table_->setAccessibleName(tr("MIDI devices"));
    table_->setMinimumSize(kPaneWidth, kPaneHeight);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table_, 1);
    layout->addWidget(hint_);
    connect(&application_, &AppDelegate::midiDevicesChanged, this, &MidiPane::read);
}

void MidiPane::read()
{
    const std::vector<KnownDevice> devices = application_.midiDevices().devices();
    hint_->setVisible(devices.empty());
    std::vector<std::pair<std::string, bool>> names;
    names.reserve(devices.size());
    for (const KnownDevice& device : devices)
        names.emplace_back(device.name, device.isConnected);
    if (names == shown_) // only this pane changes the settings
        return;
    shown_ = std::move(names);
    table_->setRowCount(0);
    table_->setRowCount(static_cast<int>(devices.size()));
    for (std::size_t i = 0; i < devices.size(); ++i)
        addRow(static_cast<int>(i), devices[i]);
}

void MidiPane::addRow(int row, const KnownDevice& device)
{
    const QString text = deviceText(device.name);
    auto* label =
        new QTableWidgetItem(device.isConnected ? text : tr("%1 (not connected)").arg(text));
    label->setFlags(device.isConnected ? Qt::ItemIsEnabled : Qt::NoItemFlags);
    label->setToolTip(QString::fromStdString(device.name));
    table_->setItem(row, kNameColumn, label);
    table_->setCellWidget(row, kOnColumn, makeSwitch(device));
    table_->setCellWidget(row, kChannelColumn, makeChannel(device));
    table_->setCellWidget(row, kKeysColumn, makeOffset(device));
}

QWidget* MidiPane::makeSwitch(const KnownDevice& device)
{
    auto* box = new QCheckBox;
    box->setToolTip(tr("Whether the device is heard"));
    setNames(*box, "IsOn", device.name);
    box->setChecked(device.settings.isOn);
    connect(box, &QCheckBox::toggled, this, [this, name = device.name](bool isOn) {
        edit(name, [&](DeviceSettings& settings) { settings.isOn = isOn; });
    });
    auto* centred = new QWidget;
    auto* layout = new QHBoxLayout(centred);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box, 0, Qt::AlignCenter);
    return centred;
}

QWidget* MidiPane::makeChannel(const KnownDevice& device)
{
    auto* box = new QComboBox;
    box->addItem(tr("All"));
    for (int channel = 1; channel <= midi::kChannels; ++channel)
        box->addItem(QString::number(channel));
    box->setToolTip(tr("The MIDI channel to listen to"));
    setNames(*box, "Channel", device.name);
    box->setCurrentIndex(device.settings.channel);
    connect(box, &QComboBox::activated, this, [this, name = device.name](int channel) {
        edit(name, [&](DeviceSettings& settings) {
            settings.channel = static_cast<std::int8_t>(channel);
        });
    });
    return box;
}

QWidget* MidiPane::makeOffset(const KnownDevice& device)
{
    auto* box = new QSpinBox;
    box->setRange(-kGreatestKeyOffset, kGreatestKeyOffset);
    box->setSuffix(tr(" semitones"));
    box->setKeyboardTracking(false); // take only complete numbers
    box->setToolTip(tr("How much higher the keys sound"));
    setNames(*box, "KeyOffset", device.name);
    box->setValue(device.settings.keyOffset);
    connect(box, &QSpinBox::valueChanged, this, [this, name = device.name](int semitones) {
        edit(name, [&](DeviceSettings& settings) {
            settings.keyOffset = static_cast<std::int16_t>(semitones);
        });
    });
    return box;
}

template <class Change> void MidiPane::edit(const std::string& name, Change change)
{
    LiveDevices& devices = application_.midiDevices();
    const std::vector<KnownDevice> known = devices.devices();
    const auto device = std::ranges::find(known, name, &KnownDevice::name);
    DeviceSettings settings = device == known.end() ? DeviceSettings() : device->settings;
    change(settings);
    devices.setSettings(name, settings);
}

} // namespace velmora
