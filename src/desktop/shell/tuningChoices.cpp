#include "desktop/shell/tuningChoices.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/tuningText.h"
#include "tuning/historicalTemperaments.h"

#include <string>

namespace velmora {

namespace {

CommandPalette::Choice choiceOf(AppDelegate& application, const std::string& name,
                                const TuningText& text)
{
    const QString detail = text.detail.isEmpty()
                               ? CommandPalette::tr("Tuning")
                               : CommandPalette::tr("Tuning – %1").arg(text.detail);
    return {text.title + '\n' + detail,
            [&application, name] { application.tunings().select(name); }};
}

} // namespace

std::vector<CommandPalette::Choice> tuningChoices(AppDelegate& application)
{
    std::vector<CommandPalette::Choice> choices;
    for (const std::string& name : application.tunings().names())
        if (findHistoricalTemperament(name) == nullptr)
            choices.push_back(choiceOf(application, name, tuningText(application, name)));
    for (const HistoricalTemperament& each : historicalTemperaments())
        choices.push_back(choiceOf(application, std::string(each.name), tuningText(each)));
    return choices;
}

} // namespace velmora
