#include "desktop/widgets/noteNames.h"

#include "preferences/Preferences.h"
#include "tuning/keyName.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

namespace velmora {

namespace {

constexpr QChar kSharp(0x266F), kFlat(0x266D);

NoteNaming namingOf(QLocale::Language language)
{
    switch (language) {
    case QLocale::Croatian:
    case QLocale::Czech:
    case QLocale::Danish:
    case QLocale::Finnish:
    case QLocale::German:
    case QLocale::Hungarian:
    case QLocale::NorwegianBokmal:
    case QLocale::NorwegianNynorsk:
    case QLocale::Polish:
    case QLocale::Slovak:
    case QLocale::Slovenian:
    case QLocale::Swedish:
        return NoteNaming::German;
    case QLocale::Catalan:
    case QLocale::French:
    case QLocale::Galician:
    case QLocale::Italian:
    case QLocale::Portuguese:
    case QLocale::Romanian:
    case QLocale::Spanish:
        return NoteNaming::Solfege;
    default:
        return NoteNaming::International;
    }
}

QString germanName(char letter, qsizetype sharps, qsizetype flats)
{
    if (letter == 'B' && flats == 1)
        return "B";
    const QString name(letter == 'B' ? 'H' : letter);
    if (flats > 0 && (letter == 'A' || letter == 'E'))
        return name + "s" + QString("es").repeated(flats - 1);
    return name + QString("is").repeated(sharps) + QString("es").repeated(flats);
}

/// The solfège syllables of the letters A to G.
constexpr std::array kSyllables{
    QT_TRANSLATE_NOOP("velmora::noteNames", "La"),  QT_TRANSLATE_NOOP("velmora::noteNames", "Si"),
    QT_TRANSLATE_NOOP("velmora::noteNames", "Do"),  QT_TRANSLATE_NOOP("velmora::noteNames", "Re"),
    QT_TRANSLATE_NOOP("velmora::noteNames", "Mi"),  QT_TRANSLATE_NOOP("velmora::noteNames", "Fa"),
    QT_TRANSLATE_NOOP("velmora::noteNames", "Sol"),
};

} // namespace

NoteNaming noteNaming()
{
    const auto chosen = static_cast<NoteNaming>(getPrefInt("NoteNames"));
    return chosen == NoteNaming::ByLanguage ? namingOf(QLocale().language()) : chosen;
}

QString toneText(const std::string& spelling)
{
    if (spelling.empty())
        return {};
    const char letter = spelling.front();
    QString accidentals = QString::fromStdString(spelling.substr(1));
    const NoteNaming naming = noteNaming();
    if (naming == NoteNaming::German)
        return germanName(letter, accidentals.count('#'), accidentals.count('b'));
    const QString name =
        naming == NoteNaming::Solfege
            ? QCoreApplication::translate("velmora::noteNames",
                                          kSyllables.at(static_cast<std::size_t>(letter - 'A')))
            : QString(letter);
    return name + accidentals.replace('#', kSharp).replace('b', kFlat);
}

QString noteText(unsigned key)
{
    // See docs/decisions.md, 141.
    return toneText(keyName(key % 12)) + QString::number(static_cast<int>(key / 12) - 1);
}

} // namespace velmora
