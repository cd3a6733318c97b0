#include "desktop/instruments/ProgramList.h"

#include "app/programNames.h"
#include "audio/Program.h"
#include "desktop/widgets/SearchField.h"

#include <QCoreApplication>
#include <QTreeWidget>

#include <array>

namespace velmora {

namespace {

constexpr int kGroupSize = 8;

/// The groups of the General MIDI standard.
constexpr std::array kGroups = {QT_TRANSLATE_NOOP("velmora::ProgramList", "Piano"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Chromatic Percussion"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Organ"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Guitar"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Bass"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Strings"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Ensemble"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Brass"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Reed"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Pipe"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Lead"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Pad"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Synth Effects"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Ethnic"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Percussive"),
                                QT_TRANSLATE_NOOP("velmora::ProgramList", "Sound Effects")};

QString groupOf(const Program& program)
{
    if (program.isPercussion)
        return ProgramList::tr("Drum kits");
    if (program.name.empty())
        return ProgramList::tr(kGroups.at(static_cast<std::size_t>(program.number / kGroupSize)));
    return ProgramList::tr("Bank %1").arg(program.bank);
}

} // namespace

QString programText(const Program& program)
{
    if (program.name.empty())
        return QCoreApplication::translate(
            "velmora::programNames",
            kMIDIInstrumentNames.at(static_cast<std::size_t>(program.number)));
    return QString("%1 %2").arg(program.number + 1).arg(QString::fromStdString(program.name));
}

ProgramList::ProgramList() : GroupedList(tr("Find a program"), tr("Program"))
{
    tree().setUniformRowHeights(true);
}

void ProgramList::showPrograms(std::span<const Program> programs)
{
    std::vector<Entry> entries;
    for (const Program& program : programs)
        entries.push_back({groupOf(program), programText(program), {}});
    showEntries(std::move(entries));
}

} // namespace velmora
