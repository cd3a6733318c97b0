#include "desktop/shell/InstrumentOpener.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/ProgressWindow.h"
#include "desktop/instruments/askWhatToLoad.h"
#include "desktop/instruments/importReport.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"

#include <utility>

namespace velmora {

InstrumentOpener::InstrumentOpener(AppDelegate& application, ProgressWindow& progress)
    : application_(application), progress_(progress)
{
    connect(&application_.loader(), &InstrumentLoader::finished, this, &InstrumentOpener::describe);
}

std::unique_ptr<InstrumentDocument>
InstrumentOpener::read(const QString& path, InstrumentFormat format, const ImportOptions& options)
{
    auto document = std::make_unique<InstrumentDocument>();
    bool isRead = document->read(pathOf(path), format, options, application_);
    progress_.endProgress();
    while (!isRead && !document->fitting().empty()) {
        const auto choice = askWhatToLoad(translated(document->errorString()), document->fitting());
        if (!choice)
            return nullptr;
        isRead = document->read(pathOf(path), format, *choice, application_);
        progress_.endProgress();
    }
    if (isRead && document->instrument() != nullptr)
        return document;
    if (isRead)
        emit failed(
            tr("%1: Velmora cannot play instruments of this format. Convert it to a SoundFont "
               "(.sf2), then open that.")
                .arg(displayName(pathOf(path))));
    else if (!document->errorString().empty())
        emit failed(translated(document->errorString()));
    return nullptr;
}

bool InstrumentOpener::open(const QString& path, InstrumentFormat format)
{
    auto document = read(path, format, {application_.playing().reading()});
    if (!document)
        return false;
    const InstrumentDocument& opened = *document;
    application_.addInstrument(std::move(document));
    describe(opened);
    return true;
}

bool InstrumentOpener::reopen(std::size_t position, const ImportOptions& options)
{
    const InstrumentDocument& before = *application_.instruments().at(position);
    auto document = read(textOf(before.path()), before.format(), options);
    if (!document)
        return false;
    const InstrumentDocument& opened = *document;
    application_.replaceInstrument(position, std::move(document));
    describe(opened);
    return true;
}

bool InstrumentOpener::select(std::size_t position)
{
    const bool isSelected = application_.selectInstrument(position);
    progress_.endProgress();
    const InstrumentDocument& document = *application_.instruments().at(position);
    const std::string& error = document.errorString();
    if (!isSelected && !document.fitting().empty()) {
        const auto choice = askWhatToLoad(translated(error), document.fitting());
        return choice && reopen(position, *choice);
    }
    if (!isSelected && !error.empty())
        emit failed(translated(error));
    return isSelected;
}

void InstrumentOpener::describe(const InstrumentDocument& document)
{
    if (document.loadingProgress())
        return; // The message would cover the progress, and is not complete yet.
    const QString name = displayName(document.path());
    const std::size_t skipped = document.report().skipped.size();
    const int choices = static_cast<int>(document.choices().size());
    const std::size_t notLoaded = document.report().notLoaded.size();
    if (notLoaded > 0)
        emit message(tr("%1: %2; see Import Report in the Instruments window")
                         .arg(name, notLoadedText(notLoaded)));
    else if (skipped > 0)
        emit message(tr("%1: %2; see Import Report in the Instruments window")
                         .arg(name, leftOutText(skipped)));
    else if (choices > 1)
        emit message(
            tr("%1 holds %n instrument(s). The Instrument menu lists them.", nullptr, choices)
                .arg(name));
}

} // namespace velmora
