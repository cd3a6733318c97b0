#include "desktop/tuning/numberTable.h"

#include <QHeaderView>
#include <QTableWidget>

namespace velmora {

QTableWidget* newNumberTable(const QStringList& headers, const QString& accessibleName)
{
    auto* table = new QTableWidget(0, static_cast<int>(headers.size()));
    table->setHorizontalHeaderLabels(headers);
    table->setAccessibleName(accessibleName);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setFocusPolicy(Qt::TabFocus);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // Stretching the last section instead leaves it too wide when the others grow.
    table->horizontalHeader()->setSectionResizeMode(table->columnCount() - 1, QHeaderView::Stretch);
    return table;
}

void showRows(QTableWidget& table, const QList<QStringList>& rows)
{
    if (table.rowCount() != rows.size())
        table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            const QString& text = rows[row][column];
            QTableWidgetItem* item = table.item(row, column);
            if (item == nullptr)
                table.setItem(row, column, new QTableWidgetItem(text));
            else if (item->text() != text)
                item->setText(text);
        }
    }
}

} // namespace velmora
