#pragma once

#include <QWidget>

#include <cstdint>

class QTreeWidget;
class QTreeWidgetItem;

namespace velmora {

class SearchField;

/// The 128 General MIDI programs in their groups, with a field to find one by its name or number.
class ProgramList : public QWidget {
    Q_OBJECT

public:
    ProgramList();

    /// Marks a program, 0…127, as the current one.
    void showProgram(int program);

signals:
    /// The user has chosen a program, 0…127.
    void programChosen(std::uint8_t program);

private:
    void filter();
    void choose(const QTreeWidgetItem* item);

    /// Does nothing if the search finds no program, so that the current one stays marked.
    void chooseFirstFound();

    SearchField* search_;
    QTreeWidget* tree_;
};

} // namespace velmora
