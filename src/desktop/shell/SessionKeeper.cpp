#include "desktop/shell/SessionKeeper.h"

#include "app/openSession.h"
#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/SequencePages.h"
#include "desktop/shell/Workspace.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "platform/writeFile.h"
#include "preferences/settings.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <exception>
#include <fstream>
#include <system_error>
#include <utility>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto kRememberInterval = 30s;

std::filesystem::path lastFile()
{
    return settingsFolder() / "last.velmora";
}

/// Exists while the last session is opened.
std::filesystem::path markFile()
{
    return settingsFolder() / "last.opening";
}

bool isThere(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::exists(file, error);
}

} // namespace

SessionKeeper::SessionKeeper(AppDelegate& application, Workspace& workspace, SequencePages& pages)
    : application_(application), workspace_(workspace), pages_(pages)
{
    timer_.setInterval(kRememberInterval);
    connect(&timer_, &QTimer::timeout, this, &SessionKeeper::rememberAtRest);
    connect(qApp, &QApplication::aboutToQuit, this, &SessionKeeper::finish);
}

QString SessionKeeper::open(const std::filesystem::path& file, Arrangement arrangement)
{
    Session session;
    try {
        session = decodeSession(readTextFile(file), std::filesystem::absolute(file).parent_path());
    } catch (const FormatError& error) {
        return translated(error.inFile(file.filename().string()));
    }
    QStringList errors;
    for (const std::string& error : openSession(session, application_))
        errors += translated(error);
    SequencePage* current = nullptr;
    for (const Session::Piece& piece : session.pieces) {
        if (const std::string error = pages_.open(textOf(piece.path)); !error.empty()) {
            errors += translated(error);
            continue;
        }
        SequenceDocument& document = pages_.current()->document();
        Transport& transport = document.transport();
        transport.setPosition(std::min(piece.position, transport.extent()));
        document.practice().showKeys();
        emit transport.frame(); // the status names them
        transport.revealPosition();
        if (&piece == &session.pieces[session.currentPiece])
            current = pages_.current();
    }
    if (current != nullptr)
        pages_.select(*current);
    if (arrangement == Arrangement::Wanted)
        workspace_.restoreArrangement(session.layout);
    return errors.join('\n');
}

void SessionKeeper::save(const std::filesystem::path& file) const
{
    const auto whole = std::filesystem::absolute(file);
    writeFile(whole, encodeSession(current(), whole.parent_path()));
}

Session SessionKeeper::current() const
{
    Session session = currentSession(application_);
    for (SequencePage* page : pages_.all()) {
        const SequenceDocument& document = page->document();
        if (document.path().empty())
            continue;
        if (page == pages_.current())
            session.currentPiece = session.pieces.size();
        session.pieces.push_back({std::filesystem::absolute(document.path()),
                                  std::clamp(document.transport().position(), 0.0, 1e12)});
    }
    session.layout = workspace_.arrangement();
    return session;
}

bool SessionKeeper::hasLast()
{
    return isThere(lastFile());
}

bool SessionKeeper::wasInterrupted()
{
    return isThere(markFile());
}

QString SessionKeeper::openLast()
{
    std::ofstream mark(markFile());
    mark.close();
    return open(lastFile(), Arrangement::Kept);
}

void SessionKeeper::startRemembering()
{
    std::error_code error;
    std::filesystem::remove(markFile(), error);
    isRemembering_ = true;
    timer_.start();
}

void SessionKeeper::finish()
{
    remember();
    isRemembering_ = false;
    timer_.stop();
}

void SessionKeeper::rememberAtRest()
{
    // Waiting for the disk must not disturb a piece that moves.
    if (std::ranges::all_of(pages_.all(), [](SequencePage* page) {
            return page->document().transport().mode() == Transport::Mode::Stopped;
        }))
        remember();
}

void SessionKeeper::remember()
{
    if (!isRemembering_)
        return;
    std::string text = encodeSession(current(), settingsFolder());
    if (text == remembered_)
        return;
    try {
        writeFile(lastFile(), text);
    } catch (const std::exception& error) {
        logger("desktop").info("{}", error.what());
    }
    remembered_ = std::move(text); // a disk that is full is not tried all the time
}

} // namespace velmora
