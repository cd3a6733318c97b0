#pragma once

#include <QWidget>

#include <cstddef>
#include <vector>

class QTreeWidget;
class QTreeWidgetItem;

namespace velmora {

class SearchField;

/// A list of entries in groups that stay open, with a field to search it.
class GroupedList : public QWidget {
    Q_OBJECT

public:
    struct Entry {
        QString group;
        QString text;    ///< What the search field searches, together with the group.
        QString toolTip; ///< May be empty.

        bool operator==(const Entry&) const = default;
    };

    /// `hint` says what can be found, and `name` is the list's accessible name.
    GroupedList(const QString& hint, const QString& name);

    /// Lists the entries, each group where its first entry is. Empties the search field if the
    /// entries are others than before. No entry is current then.
    void showEntries(std::vector<Entry> entries);

    /// Marks the entry at a position as the current one; none if there is no such entry.
    void showCurrent(std::size_t position);

    /// The list itself.
    QTreeWidget& tree() { return *tree_; }

signals:
    /// The user has chosen the entry at a position.
    void chosen(std::size_t position);

private:
    void choose(const QTreeWidgetItem* item);
    void filter();

    /// Prefers an entry that begins with what is typed. Does nothing if the search finds no entry,
    /// so that the current one stays marked.
    void chooseFirstFound();

    /// Lets the letters play again and the space bar start the piece once an entry is chosen.
    void leaveSearch();

    SearchField* search_;
    QTreeWidget* tree_;
    std::vector<Entry> entries_;
    std::vector<QTreeWidgetItem*> items_; ///< By the position of the entry.
};

} // namespace velmora
