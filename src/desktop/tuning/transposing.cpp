#include "desktop/tuning/transposing.h"

#include "app/Tunings.h"
#include "desktop/tuning/TranspositionBar.h"
#include "desktop/widgets/noteNames.h"
#include "tuning/spelling.h"

#include <QLocale>

#include <cmath>

namespace velmora {

namespace {

QString hertzText(double hertz)
{
    return QLocale().toString(hertz, 'f', hertz == std::round(hertz) ? 0 : 1);
}

} // namespace

std::vector<std::optional<double>> usualPitches()
{
    return {392.0, 415.0, 430.0, 440.0, 442.0, 466.0, std::nullopt};
}

QString pitchText(const std::optional<double>& a)
{
    return a ? TranspositionBar::tr("A %1 Hz").arg(hertzText(*a))
             : TranspositionBar::tr("A as the Tuning Has It");
}

void setA(Tunings& tunings, const std::optional<double>& a)
{
    tunings.setTransposition({tunings.transposition().root, a});
}

void moveRoot(Tunings& tunings, int semitones)
{
    const Transposition& before = tunings.transposition();
    tunings.setTransposition({(before.root + semitones + 12) % 12, before.a});
}

QString standingTitle(const QString& title, const Tunings& tunings)
{
    const Transposition& where = tunings.transposition();
    const QString root = toneText(rootName(where.root));
    if (where.root == 0)
        return where.a ? TranspositionBar::tr("%1, A %2 Hz").arg(title, hertzText(*where.a))
                       : title;
    return where.a ? TranspositionBar::tr("%1 on %2, A %3 Hz").arg(title, root, hertzText(*where.a))
                   : TranspositionBar::tr("%1 on %2").arg(title, root);
}

} // namespace velmora
