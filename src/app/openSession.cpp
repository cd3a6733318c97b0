#include "app/openSession.h"

#include "app/AppDelegate.h"
#include "app/OfflineSound.h"
#include "base/FormatError.h"
#include "sound/OrganInstrument.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace velmora {

namespace {

/// Returns the position of the instrument of a file, or of the General MIDI player.
std::optional<std::size_t> findInstrument(const AppDelegate& application,
                                          const std::filesystem::path& path)
{
    const auto& listed = application.instruments();
    const auto found = std::ranges::find(
        listed, path, [](const auto& document) -> const auto& { return document->path(); });
    if (found == listed.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - listed.begin());
}

/// Returns the last listed tuning of a name; null if there is none.
const TuningDocument* findTuning(const Tunings& tunings, const std::string& name)
{
    const auto& listed = tunings.documents();
    const auto found = std::find_if(listed.rbegin(), listed.rend(),
                                    [&](const auto& document) { return document->name() == name; });
    return found == listed.rend() ? nullptr : found->get();
}

/// Opens a tuning that has no file: one that was received, or one that is built in and now gets a
/// keyboard mapping. Returns a sentence if that fails.
std::string openNamedTuning(const Session::Tuning& wanted, Tunings& tunings)
{
    const TuningDocument* listed = findTuning(tunings, wanted.name);
    if (listed != nullptr && listed->mappingPath() == wanted.mapping)
        return {};
    std::unique_ptr<TuningDocument> made;
    if (wanted.received)
        made = TuningDocument::makeReceived(wanted.name, *wanted.received);
    else if (listed == nullptr && TuningDocument::isBuiltin(wanted.name))
        made = TuningDocument::makeBuiltin(wanted.name);
    else if (listed == nullptr)
        return "there is no tuning named \"" + wanted.name + "\"";
    auto mapped = (made ? *made : *listed).withMapping(wanted.mapping);
    std::string error = mapped->errorString();
    tunings.replace(std::move(mapped));
    return error;
}

/// Opens a tuning unless it is listed. Returns a sentence if that fails.
std::string openTuning(const Session::Tuning& wanted, AppDelegate& application)
{
    Tunings& tunings = application.tunings();
    const auto& path = wanted.path;
    if (path.empty())
        return openNamedTuning(wanted, tunings);
    for (const auto& listed : tunings.documents())
        if (listed->path() == path)
            return {};
    const auto format = tuningFormatOf(path);
    if (!format)
        return FormatError("this is not a tuning file").inFile(path.filename().string());
    auto document = std::make_unique<TuningDocument>();
    if (!document->read(path, *format, application.playing().reading()))
        return document->errorString();
    if (wanted.mapping.empty()) {
        tunings.put(std::move(document));
        return {};
    }
    auto mapped = document->withMapping(wanted.mapping);
    std::string error = mapped->errorString();
    tunings.put(std::move(mapped));
    return error;
}

/// What became of an instrument of a session.
struct Opened {
    std::optional<std::size_t> position; ///< Empty if it is not in the list.
    std::string error;                   ///< Empty if the user has cancelled the loading.
};

Opened openInstrument(const Session::Instrument& wanted, AppDelegate& application)
{
    const auto listed = findInstrument(application, wanted.path);
    if (listed && (application.instruments()[*listed]->instrument() != nullptr ||
                   application.selectInstrument(*listed)))
        return {listed, {}};
    if (listed)
        return {std::nullopt, application.instruments()[*listed]->errorString()};
    auto document = std::make_unique<InstrumentDocument>();
    if (!document->read(wanted.path, wanted.format, wanted.options, application))
        return {std::nullopt, document->errorString()};
    application.addInstrument(std::move(document));
    return {application.instruments().size() - 1, {}};
}

/// Selects a program, unless the bank has changed and no longer has it.
void selectProgram(Instrument& instrument, int bank, int number)
{
    const auto programs = instrument.programs();
    const auto found = std::ranges::find_if(programs, [&](const Program& program) {
        return program.bank == bank && program.number == number;
    });
    instrument.setProgram(static_cast<std::size_t>(found - programs.begin()));
}

} // namespace

Session currentSession(AppDelegate& application)
{
    Session session;
    for (const auto& document : application.instruments()) {
        if (document->instrument() == nullptr)
            continue; // it was unloaded
        if (application.isCurrent(*document))
            session.currentInstrument = session.instruments.size();
        Session::Instrument entry{document->path(), document->format(), document->options(), {}};
        application.player().with([&](const Instrument&, const Temperament&) {
            const Instrument& instrument = *document->instrument();
            entry.console = consoleStateOf(instrument);
            if (!entry.console)
                entry.gains = gainsOf(instrument);
            if (!instrument.programs().empty()) {
                const Program& program = instrument.programs()[instrument.program()];
                entry.bank = program.bank;
                entry.program = program.number;
            }
        });
        session.instruments.push_back(std::move(entry));
    }
    session.program = application.midiProgram();
    for (const auto& document : application.tunings().documents()) {
        const bool hasFile = !document->path().empty();
        const bool isMapped = document->original().empty() && !document->mappingPath().empty();
        if (hasFile || isMapped || document->received())
            session.tunings.push_back({document->path(), document->mappingPath(),
                                       hasFile ? std::string() : document->name(),
                                       document->received()});
    }
    session.tuning = application.tunings().lastingName();
    session.standing = application.tunings().transposition();
    session.transposition = application.playing().settings().transposition;
    return session;
}

std::vector<std::string> openSession(const Session& session, AppDelegate& application)
{
    std::vector<std::string> errors;
    for (const Session::Tuning& wanted : session.tunings)
        if (std::string error = openTuning(wanted, application); !error.empty())
            errors.push_back(std::move(error));
    std::optional<std::size_t> current;
    for (const Session::Instrument& wanted : session.instruments) {
        const Opened opened = openInstrument(wanted, application);
        if (!opened.position && opened.error.empty())
            break;
        if (!opened.position) {
            errors.push_back(opened.error);
            continue;
        }
        application.player().with([&](const Instrument&, const Temperament&) {
            Instrument& instrument = *application.instruments()[*opened.position]->instrument();
            if (auto* organ = dynamic_cast<OrganInstrument*>(&instrument); organ && wanted.console)
                organ->console().setState(*wanted.console);
            for (std::size_t stop = 0; stop < wanted.gains.size(); ++stop)
                instrument.setVolume(stop, wanted.gains[stop]);
            if (wanted.path.empty())
                instrument.setInstrument(session.program);
            else
                selectProgram(instrument, wanted.bank, wanted.program);
        });
        if (&wanted == &session.instruments[session.currentInstrument])
            current = opened.position;
    }
    if (current)
        application.selectInstrument(*current);
    if (!session.tuning.empty() && !application.tunings().select(session.tuning) && errors.empty())
        errors.push_back("there is no tuning named \"" + session.tuning + "\"");
    application.tunings().setTransposition(session.standing);
    application.playing().setTransposition(session.transposition);
    return errors;
}

} // namespace velmora
