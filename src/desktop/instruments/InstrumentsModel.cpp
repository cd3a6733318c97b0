#include "desktop/instruments/InstrumentsModel.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/messages.h"
#include "desktop/widgets/sizeText.h"

#include <QGuiApplication>
#include <QPalette>

namespace velmora {

namespace {

enum Column { kName, kSize, kColumns };

} // namespace

InstrumentsModel::InstrumentsModel(AppDelegate& application, QObject* parent)
    : QAbstractTableModel(parent), application_(application)
{
    connect(&application, &AppDelegate::instrumentsChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int InstrumentsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(application_.instruments().size());
}

int InstrumentsModel::columnCount(const QModelIndex& /*parent*/) const
{
    return kColumns;
}

QVariant InstrumentsModel::data(const QModelIndex& index, int role) const
{
    const InstrumentDocument& document =
        *application_.instruments().at(static_cast<std::size_t>(index.row()));
    const bool isUnloaded = document.instrument() == nullptr;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == kName ? translatedTitle(document.title())
                                       : sizeText(static_cast<std::uint64_t>(document.size()));
    case Qt::TextAlignmentRole:
        return index.column() == kSize ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ForegroundRole:
        return isUnloaded ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                          : QVariant();
    case Qt::ToolTipRole:
        return isUnloaded ? QVariant(tr("Unloaded: select it to load it again")) : QVariant();
    default:
        return {};
    }
}

QVariant InstrumentsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == kName ? tr("Instrument") : tr("Size");
}

} // namespace velmora
