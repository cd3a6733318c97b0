#include "desktop/tuning/tuningText.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/TuningPanel.h"
#include "tuning/historicalTemperaments.h"

#include <algorithm>
#include <string_view>

namespace velmora {

namespace {

constexpr const char* kGroupTexts[] = {
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Pythagorean"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Meantone"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "French"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "English"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Well temperaments"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Just intonation"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Equal divisions"),
    QT_TRANSLATE_NOOP("velmora::TuningPanel", "Outside Europe")};

} // namespace

TuningText tuningText(const AppDelegate& application, const std::string& name)
{
    const QString file = QString::fromStdString(name);
    const QString description = QString::fromStdString(application.tunings().getDescription(name));
    if (const auto* historical = findHistoricalTemperament(name))
        return tuningText(*historical);
    if (!description.isEmpty())
        return {description, file};
    if (name == "Equal")
        return {TuningPanel::tr("Equal"), TuningPanel::tr("Twelve equal semitones")};
    if (name == "Quartercomma Meantone")
        return {TuningPanel::tr("Quartercomma Meantone"), TuningPanel::tr("Pure major thirds")};
    if (name == "Dynamic")
        return {TuningPanel::tr("Dynamic"), TuningPanel::tr("Adapts its thirds to what you play")};
    if (name == "Following Meantone")
        return {TuningPanel::tr("Following Meantone"),
                TuningPanel::tr("Spells each key as the music asks for, with pure thirds")};
    if (name == "Pure")
        return {TuningPanel::tr("Pure"), TuningPanel::tr("Makes the chords that you play pure")};
    return {file, {}};
}

TuningText tuningText(const HistoricalTemperament& temperament)
{
    const auto text = [](std::string_view utf8) {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    };
    return {text(temperament.name), text(temperament.source)};
}

QString groupText(const HistoricalTemperament& temperament)
{
    const auto found = std::ranges::find(kGroupTexts, temperament.group);
    return TuningPanel::tr(found == std::end(kGroupTexts) ? "" : *found);
}

} // namespace velmora
