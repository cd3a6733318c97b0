#include "desktop/console/ManualsDialog.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/deviceText.h"
#include "desktop/widgets/scrolling.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kChannels = 16;
constexpr int kListHeight = 260;

} // namespace

ManualsDialog::ManualsDialog(AppDelegate& application, QWidget* parent)
    : QDialog(parent), application_(application), grid_(new QGridLayout)
{
    setWindowTitle(tr("Manuals"));
    auto* hint = new QLabel(tr("What no line names plays the lowest manual. The channels of pieces "
                               "count as those of all devices."));
    hint->setWordWrap(true);
    const QStringList titles = {tr("Device"), tr("Channel"), tr("Plays")};
    for (int column = 0; column < titles.size(); ++column)
        grid_->addWidget(new QLabel(titles[column]), 0, column);
    grid_->setColumnStretch(0, 1);
    grid_->setColumnStretch(2, 1);
    auto* content = new QWidget;
    auto* list = new QVBoxLayout(content);
    list->addLayout(grid_);
    list->addStretch();
    QScrollArea* area = newScrollArea(content);
    area->setMinimumHeight(kListHeight);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::RestoreDefaults);
    QPushButton* add = buttons->addButton(tr("&Add Line"), QDialogButtonBox::ActionRole);
    auto* column = new QVBoxLayout(this);
    column->addWidget(hint);
    column->addWidget(area, 1);
    column->addWidget(buttons);
    connect(add, &QPushButton::clicked, this, [this] { addRow({}); });
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            [this] { show(defaultDivisions(*application_.organ().definition())); });
    connect(buttons, &QDialogButtonBox::accepted, this, &ManualsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ManualsDialog::reject);
    show(application_.organ().divisions());
}

void ManualsDialog::show(const DivisionTable& table)
{
    while (!rows_.empty())
        removeRow(rows_.back().remove);
    for (const DivisionRoute& route : table)
        addRow(route);
}

QComboBox* ManualsDialog::makeDevices(const std::string& chosen) const
{
    auto* box = new QComboBox;
    box->addItem(tr("All devices"), QString());
    for (const KnownDevice& device : application_.midiDevices().devices())
        box->addItem(deviceText(device.name), QString::fromStdString(device.name));
    const QString name = QString::fromStdString(chosen);
    if (box->findData(name) < 0) // it is not connected now
        box->addItem(deviceText(chosen), name);
    box->setCurrentIndex(box->findData(name));
    return box;
}

void ManualsDialog::addRow(const DivisionRoute& route)
{
    Row row{makeDevices(route.device), new QComboBox, new QComboBox, new QPushButton(tr("Remove"))};
    row.channel->addItem(tr("All channels"), kEveryChannel);
    for (int channel = 0; channel < kChannels; ++channel)
        row.channel->addItem(tr("Channel %1").arg(channel + 1), channel);
    row.channel->setCurrentIndex(row.channel->findData(route.channel));
    for (const ConsoleDefinition::Division& division : application_.organ().definition()->divisions)
        row.division->addItem(QString::fromStdString(division.name));
    row.division->setCurrentIndex(static_cast<int>(route.division));
    const int line = grid_->rowCount();
    row.device->setAccessibleName(tr("Device"));
    row.channel->setAccessibleName(tr("Channel"));
    row.division->setAccessibleName(tr("Plays"));
    row.device->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const std::array<QWidget*, 4> widgets = {row.device, row.channel, row.division, row.remove};
    for (int column = 0; QWidget * widget : widgets)
        grid_->addWidget(widget, line, column++);
    for (QComboBox* box : {row.device, row.channel, row.division})
        leaveWheelToScrolling(*box);
    connect(static_cast<QPushButton*>(row.remove), &QPushButton::clicked, this,
            [this, button = row.remove] { removeRow(button); });
    rows_.push_back(row);
}

void ManualsDialog::removeRow(const QWidget* button)
{
    const auto row = std::ranges::find(rows_, button, &Row::remove);
    const std::array<QWidget*, 4> widgets = {row->device, row->channel, row->division, row->remove};
    rows_.erase(row);
    for (QWidget* widget : widgets) {
        grid_->removeWidget(widget);
        widget->hide();
        widget->deleteLater(); // not at once: its own signal may be why
    }
}

DivisionTable ManualsDialog::table() const
{
    DivisionTable table;
    for (const Row& row : rows_)
        table.push_back({row.device->currentData().toString().toStdString(),
                         row.channel->currentData().toInt(),
                         static_cast<std::size_t>(row.division->currentIndex())});
    // The first line that fits decides.
    std::ranges::stable_sort(table, std::greater{}, [](const DivisionRoute& route) {
        return 2 * static_cast<int>(!route.device.empty()) +
               static_cast<int>(route.channel != kEveryChannel);
    });
    return table;
}

void ManualsDialog::accept()
{
    application_.organ().setDivisions(table());
    QDialog::accept();
}

} // namespace velmora
