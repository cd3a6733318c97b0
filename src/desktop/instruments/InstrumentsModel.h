#pragma once

#include <QAbstractTableModel>

namespace velmora {

class AppDelegate;

/// The application's list of instruments as a table. Each row shows the name of an instrument and
/// its size in memory.
class InstrumentsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    InstrumentsModel(AppDelegate& application, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    AppDelegate& application_;
};

} // namespace velmora
