#include "desktop/tuning/intervalText.h"

#include "desktop/widgets/noteNames.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace velmora {

namespace {

struct Interval {
    Q_DECLARE_TR_FUNCTIONS(velmora::Interval)
};

/// By the position in `justIntervals`.
constexpr std::array kIntervalTexts = {
    QT_TRANSLATE_NOOP("velmora::Interval", "Unison"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Semitone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Small whole tone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Whole tone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Septimal whole tone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Septimal minor third"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Minor third"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Major third"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Fourth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Small tritone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Large tritone"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Fifth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Minor sixth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Major sixth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Septimal major sixth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Natural seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Small minor seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Minor seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Major seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "Octave"),
};

/// By `Chord::Kind`.
constexpr std::array<const char*, Chord::kKinds> kChordTexts = {
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 major"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 minor"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 diminished"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 augmented"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 suspended fourth"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 suspended second"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 dominant seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 major seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 minor seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 minor with a major seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 half-diminished seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 diminished seventh"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1 augmented sixth"),
};

constexpr std::array kInversionTexts = {
    QT_TRANSLATE_NOOP("velmora::Interval", "%1, root position"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1, first inversion"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1, second inversion"),
    QT_TRANSLATE_NOOP("velmora::Interval", "%1, third inversion"),
};

} // namespace

QString centsText(double cents)
{
    const double shown = std::round(cents * 10) / 10;
    const QLocale locale;
    const QString sign = shown > 0 ? locale.positiveSign() : shown < 0 ? "−" : "";
    return sign + locale.toString(std::abs(shown), 'f', shown == 0 ? 0 : 1);
}

QString intervalText(const HeardInterval& heard)
{
    const JustInterval& just = justIntervals()[heard.nearest];
    const QString name = Interval::tr("%1 %2/%3")
                             .arg(Interval::tr(kIntervalTexts.at(heard.nearest)))
                             .arg(just.numerator)
                             .arg(just.denominator);
    return heard.octaves == 0
               ? name
               : Interval::tr("%1 and %n octave(s)", nullptr, heard.octaves).arg(name);
}

QString beatsText(double beatsPerSecond)
{
    constexpr double kStill = 0.05;
    return beatsPerSecond < kStill ? Interval::tr("none")
                                   : QLocale().toString(beatsPerSecond, 'f', 1);
}

QString chordText(const Chord& chord, const std::array<std::string, 12>& names)
{
    const QString name = Interval::tr(kChordTexts.at(static_cast<std::size_t>(chord.kind)))
                             .arg(toneText(names.at(chord.root)));
    return Interval::tr(kInversionTexts.at(chord.inversion)).arg(name);
}

QString purityText(Purity purity)
{
    switch (purity) {
    case Purity::Pure:
        return Interval::tr("nearly pure");
    case Purity::Tempered:
        return Interval::tr("tempered");
    case Purity::Rough:
        return Interval::tr("rough");
    default:
        return {};
    }
}

QString spelledKeyText(unsigned key, const std::array<std::string, 12>& names)
{
    const std::string& name = names.at(key % 12);
    // B sharp and C flat belong to the octave of the letter.
    int octave = static_cast<int>(key / 12) - 1;
    if (name.front() == 'B' && key % 12 < 6)
        --octave;
    if (name.front() == 'C' && key % 12 > 6)
        ++octave;
    return toneText(name) + QString::number(octave);
}

} // namespace velmora
