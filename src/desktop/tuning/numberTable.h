#pragma once

#include <QStringList>

class QTableWidget;

namespace velmora {

/// Returns a table without rows that only shows texts, and that the Tab key enters and leaves.
QTableWidget* newNumberTable(const QStringList& headers, const QString& accessibleName);

/// Fills a table with one list of texts for each row. Cells that are the same stay as they are.
void showRows(QTableWidget& table, const QList<QStringList>& rows);

} // namespace velmora
