#pragma once

#include "audio/Program.h"

#include <QWidget>

#include <cstddef>
#include <span>
#include <vector>

class QTreeWidget;
class QTreeWidgetItem;

namespace velmora {

class SearchField;

/// The programs of an instrument in their groups, with a field to find one by its name or number:
/// the families of General MIDI, or the banks and drum kits of a SoundFont.
class ProgramList : public QWidget {
    Q_OBJECT

public:
    ProgramList();

    /// Lists the programs of an instrument. Those without a name are General MIDI's.
    void showPrograms(std::span<const Program> programs);

    /// Marks the program at a position as the current one.
    void showProgram(int position);

signals:
    /// The user has chosen the program at a position.
    void programChosen(std::size_t position);

private:
    void filter();
    void choose(const QTreeWidgetItem* item);

    /// Does nothing if the search finds no program, so that the current one stays marked.
    void chooseFirstFound();

    SearchField* search_;
    QTreeWidget* tree_;
    std::vector<Program> programs_;
    std::vector<QTreeWidgetItem*> items_; ///< By the position of the program.
};

} // namespace velmora
