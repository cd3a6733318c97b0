#pragma once

#include "audio/Program.h"
#include "desktop/widgets/GroupedList.h"

#include <span>

namespace velmora {

/// Returns the name of a program behind its number, which counts from 1 as on keyboards. One
/// without a name is General MIDI's.
QString programText(const Program& program);

/// The programs of an instrument in their groups, with a field to find one by its name or number:
/// the families of General MIDI, or the banks and drum kits of a SoundFont.
class ProgramList : public GroupedList {
    Q_OBJECT

public:
    ProgramList();

    /// Lists the programs of an instrument. Those without a name are General MIDI's.
    void showPrograms(std::span<const Program> programs);
};

} // namespace velmora
