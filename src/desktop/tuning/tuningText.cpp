#include "desktop/tuning/tuningText.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/TuningPanel.h"

namespace velmora {

TuningText tuningText(const AppDelegate& application, const std::string& name)
{
    const QString file = QString::fromStdString(name);
    const QString description = QString::fromStdString(application.getTuningDescription(name));
    if (TuningDocument::isBuiltin(name) && !description.isEmpty())
        return {file, description};
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

} // namespace velmora
